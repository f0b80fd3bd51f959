"""Deep-sky tables of one shared 28-byte record: designation String*6, RA
and Dec Singles, size class Integer, direction.

VDRDAT3.DAT galaxies, VDRDAT4.DAT planetary nebulae, VDRDAT5.DAT diffuse
nebulae, VDRDATI.DAT open clusters, VDRDATJ.DAT globular clusters. Each
takes the largest objects of its OpenNGC types by major axis, and is sorted
by size class (largest class first) and, within a class, by catalogue and
number so that the search list can be scanned.
"""
import math
import os
import re

from . import binario

# (file, OpenNGC types, how many, lower bounds in arcmin of classes 1, 2, ...)
TABLAS = [
    ('VDRDAT3.DAT', ('G',), 1234, (30.0, 20.0, 10.0)),
    ('VDRDAT4.DAT', ('PN',), 142, (1.0,)),
    ('VDRDAT5.DAT', ('HII', 'EmN', 'Neb', 'RfN'), 174, (10.0,)),
    ('VDRDATI.DAT', ('OCl',), 296, (10.0,)),
    ('VDRDATJ.DAT', ('GCl',), 75, (10.0,)),
]


# Objects outside NGC/IC whose catalogue name does not fit 6 characters.
ABREVIATURAS = {
    'ESO056-115': 'LMC',     # Large Magellanic Cloud
    'PGC088608': 'SexDw',    # Sextans dwarf spheroidal
    'ESO351-030': 'SclDw',   # Sculptor dwarf
    'ESO356-004': 'ForDw',   # Fornax dwarf
    'UGC05470': 'Leo I',
    'PGC000143': 'WLM',      # Wolf-Lundmark-Melotte
}


def designacion_corta(nombre):
    """'NGC0224' -> 'N224', 'IC0342' -> 'IC342', other catalogues as
    written without blanks; None when that does not fit 6 characters."""
    m = re.match(r'^(NGC|IC)0*(\d+.*)$', nombre)
    if m:
        corto = ('N' if m.group(1) == 'NGC' else 'IC') + m.group(2)
    else:
        corto = ABREVIATURAS.get(nombre, nombre.replace(' ', ''))
    return corto if len(corto) <= 6 else None


def _clave_catalogo(designacion):
    m = re.match(r'^(N|IC)(\d+)(.*)$', designacion)
    if m:
        return (0 if m.group(1) == 'N' else 1, int(m.group(2)), m.group(3))
    return (2, 0, designacion)


def clase(tamano, limites):
    for k, limite in enumerate(limites):
        if tamano > limite:
            return k + 1
    return len(limites) + 1


def _openngc(fuentes):
    return binario.lee_csv(os.path.join(fuentes, 'cielo_profundo', 'openngc_recortado.csv'), ';')


def _cerca(a, b, radianes):
    (ar1, d1), (ar2, d2) = a, b
    c = (math.sin(d1) * math.sin(d2) + math.cos(d1) * math.cos(d2) * math.cos(ar1 - ar2))
    return math.acos(max(-1.0, min(1.0, c))) < radianes


def _suplemento_planetarias(fuentes, ya, cuantas):
    """The largest GPN nebulae that are neither NGC/IC objects nor within
    1' of one already chosen."""
    filas = binario.lee_csv(os.path.join(fuentes, 'cielo_profundo',
                                         'nebulosas_planetarias_gpn.csv'))
    candidatas = []
    for f in filas:
        diam = f['diam_arcsec'].lstrip('<>')
        if (not diam or re.match(r'^(NGC|IC)\s', f['name'])
                or not designacion_corta(f['name'])):
            continue
        candidatas.append((-float(diam), f['name'], f))
    candidatas.sort()
    elegidas = []
    for menos_diam, nombre, f in candidatas:
        pos = binario.grados(f['ra_deg'], f['dec_deg'])
        if any(_cerca(pos, p, math.radians(1 / 60.0)) for p in ya):
            continue
        elegidas.append((designacion_corta(nombre), -menos_diam / 60.0) + pos)
        ya.append(pos)
        if len(elegidas) == cuantas:
            break
    return elegidas


def objetos(fuentes, tipos, cuantos):
    """(designation, size in arcmin, ra, dec) of the largest objects."""
    filas = [f for f in _openngc(fuentes) if f['Type'] in tipos and f['MajAx']
             and designacion_corta(f['Name'])]
    filas.sort(key=lambda f: (-float(f['MajAx']), f['Name']))
    elegidos = [(designacion_corta(f['Name']), float(f['MajAx']))
                + binario.horas_grados(f['RA'], f['Dec']) for f in filas[:cuantos]]
    if len(elegidos) < cuantos and tipos == ('PN',):
        elegidos += _suplemento_planetarias(fuentes, [(o[2], o[3]) for o in elegidos],
                                            cuantos - len(elegidos))
    if len(elegidos) != cuantos:
        raise ValueError('faltan objetos de tipo %s' % (tipos,))
    return elegidos


def escribe_tabla(fuentes, salida, nombre, tipos, cuantos, limites):
    """Writes one table; returns the size class of each record in order."""
    lista = [(clase(tam, limites), _clave_catalogo(d), d, ar, dec)
             for d, tam, ar, dec in objetos(fuentes, tipos, cuantos)]
    lista.sort()
    registros = [binario.texto(d, 6) + binario.simple(ar) + binario.simple(dec)
                 + binario.entero(c) + binario.vector(ar, dec)
                 for c, _, d, ar, dec in lista]
    binario.escribe(salida, nombre, registros, 28)
    return [c for c, *_ in lista]


def escribe_todas(fuentes, salida):
    return {nombre: escribe_tabla(fuentes, salida, nombre, tipos, cuantos, limites)
            for nombre, tipos, cuantos, limites in TABLAS}
