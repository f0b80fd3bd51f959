"""VDRDATH.DAT: the 178 places of the location dialog.

Record (28 bytes): name String*20 = the place name padded to 15 characters
followed by the country code in brackets, "Madrid         (ESP)"; longitude
Single, radians, west positive in [0, 2*pi) so that a place east of
Greenwich lies above pi; latitude Single, radians, north positive.
Sorted alphabetically ignoring case and accents.
"""
import math
import os

from . import binario

NUM_LUGARES = 178
INDICE_INICIAL = 95
# The program's default coordinates, selected together with index 95: a
# point of the Guadalhorce valley 29 km west of the city of Malaga.
LONGITUD_INICIAL = 0.0829029977321625
LATITUD_INICIAL = 0.640890002250671
NOMBRE_INICIAL = 'Málaga (oeste)'

# Names that do not fit 15 characters in the proposal.
ABREVIADOS = {
    'Andorra la Vieja': 'Andorra',
    'Ciudad de México': 'C. de México',
    'Ciudad de Panamá': 'C. de Panamá',
    'Pto. del Rosario': 'Pto.del Rosario',
    'S.C. de La Palma': 'S.C. La Palma',
    'S.C. de Tenerife': 'S.C. Tenerife',
    'S.Sebast. Gomera': 'S.Sebast.Gomera',
    'Santiago (Chile)': 'Stgo. de Chile',
    'Stgo. Compostela': 'Stgo.Compostela',
}
# Five places of the proposal after "Malaga" give way to four Spanish towns
# before it and to the default point, so that alphabetical order puts the
# default point at index 95.
RETIRADOS = {'Rosario', 'Puebla', 'Monterrey', 'Valparaíso', 'Sta. Cruz Sierra'}
# (name, GeoNames name in the pool)
ANADIDOS = [('Algeciras', 'Algeciras'), ('Antequera', 'Antequera'),
            ('Elche', 'Elche'), ('Jerez', 'Jerez de la Frontera')]


def _registro(nombre, iso3, longitud_oeste, latitud):
    return (binario.texto(nombre.ljust(15) + '(' + iso3 + ')', 20)
            + binario.simple(longitud_oeste) + binario.simple(latitud))


def _oeste(lon_este_grados):
    return math.radians((-float(lon_este_grados)) % 360.0)


def lugares(fuentes):
    """List of (name, iso3, longitude west, latitude) in file order."""
    propuesta = binario.lee_csv(os.path.join(fuentes, 'lugares', 'lugares_propuesta_178.csv'))
    reserva = binario.lee_csv(os.path.join(fuentes, 'lugares', 'lugares_geonames.csv'))
    lista = []
    for p in propuesta:
        nombre = ABREVIADOS.get(p['nombre_corto'], p['nombre_corto'])
        if p['nombre_corto'] in RETIRADOS:
            continue
        lista.append((nombre, p['iso3'], _oeste(p['lon_deg']), math.radians(float(p['lat_deg']))))
    for nombre, en_reserva in ANADIDOS:
        candidatos = [r for r in reserva if r['name'] == en_reserva and r['iso3'] == 'ESP']
        r = max(candidatos, key=lambda r: int(r['population']))
        lista.append((nombre, 'ESP', _oeste(r['lon_deg']), math.radians(float(r['lat_deg']))))
    lista.append((NOMBRE_INICIAL, 'ESP', LONGITUD_INICIAL, LATITUD_INICIAL))
    lista.sort(key=lambda l: binario.clave_alfabetica(l[0]))
    if len(lista) != NUM_LUGARES or lista[INDICE_INICIAL][0] != NOMBRE_INICIAL:
        raise ValueError('la lista de lugares no deja el punto inicial en %d' % INDICE_INICIAL)
    return lista


def escribe_vdrdath(fuentes, salida):
    registros = [_registro(*l) for l in lugares(fuentes)]
    return binario.escribe(salida, 'VDRDATH.DAT', registros, 28)
