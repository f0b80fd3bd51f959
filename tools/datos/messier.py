"""VDRDATG.DAT: the Messier objects M1 to M109 (index = number - 1).

Record (66 bytes), in the columns of the search list " Nro.  NGC  Tipo
Nombre  Mag.Vis.":
  kind String*1      symbol code "1" open cluster, "2" globular cluster,
                     "3" planetary nebula, "4" diffuse nebula or supernova
                     remnant, "5" galaxy, "6" other (star cloud, double
                     star, asterism);
  number String*6    NGC number ("1952"), "IC4715", or the catalogue of an
                     object outside NGC/IC ("Mel22");
  RA, Dec Singles;
  magnitude String*4 visual magnitude as text, "#0.0" right-aligned;
  type String*20     Spanish type in 16 characters, a blank and the
                     constellation abbreviation;
  name String*15     common Spanish name, or the NGC/IC designation;
  direction.
M102 is Mechain's doubtful object: kept as the duplicate of M101 that it
most likely is, at M101's place, so that its symbol falls on M101's.
"""
import os

from . import binario

NUM_MESSIER = 109

CODIGO = {'OCl': '1', 'Cl+N': '4', 'GCl': '2', 'PN': '3', 'Neb': '4', 'HII': '4', 'RfN': '4',
          'SNR': '4', 'G': '5', '*Ass': '6', '**': '6', 'Other': '6'}
TIPO = {'OCl': 'Cúmulo abierto', 'Cl+N': 'Nebulosa difusa', 'GCl': 'Cúmulo globular',
        'PN': 'Neb. planetaria', 'Neb': 'Nebulosa difusa', 'HII': 'Nebulosa difusa',
        'RfN': 'Neb. reflexión', 'SNR': 'Resto supernova', '*Ass': 'Nube estelar',
        '**': 'Estrella doble', 'Other': 'Asterismo'}
# Galaxy types from the first letter of the Hubble type.
TIPO_GALAXIA = {'E': 'Gal. elíptica', 'S': 'Gal. espiral', 'I': 'Gal. irregular'}
# Common names after an editorial pass of the translated nicknames.
NOMBRES = {
    1: 'Neb. Cangrejo', 6: 'Mariposa', 7: 'Cúm. Ptolomeo', 8: 'Neb. Laguna',
    11: 'Pato Salvaje', 13: 'Cúm. Hércules', 16: 'Neb. Águila', 17: 'Neb. Omega',
    20: 'Neb. Trífida', 24: 'Nube Sagitario', 27: 'Neb. Dumbbell', 31: 'Gal. Andrómeda',
    33: 'Gal. Triángulo', 40: 'Winnecke 4', 42: 'Neb. Orión', 43: 'Neb. de Mairan',
    44: 'El Pesebre', 45: 'Pléyades', 51: 'Gal. Remolino', 57: 'Neb. Anillo',
    63: 'Gal. Girasol', 64: 'Gal. Ojo Negro', 65: 'Trío de Leo', 66: 'Trío de Leo',
    76: 'Peq. Dumbbell', 77: 'Cetus A', 81: 'Gal. de Bode', 82: 'Gal. Cigarro',
    83: 'Molinillo Aus.', 84: 'Cad. Markarian', 86: 'Cad. Markarian', 87: 'Virgo A',
    97: 'Neb. Lechuza', 101: 'Gal. Molinillo', 102: 'Objeto dudoso', 104: 'Gal. Sombrero',
}
# Objects without an NGC or IC number.
NUMEROS = {40: 'Win4', 45: 'Mel22'}


def _hubble(fuentes):
    filas = binario.lee_csv(os.path.join(fuentes, 'cielo_profundo', 'openngc_recortado.csv'), ';')
    return {f['Name']: f['Hubble'] for f in filas}


def _numero(m, fila):
    if m in NUMEROS:
        return NUMEROS[m]
    d = fila['designation']
    return d[4:] if d.startswith('NGC ') else d.replace(' ', '')


def _tipo(fila, hubble):
    if fila['type'] == 'G':
        h = hubble.get(fila['row'], '')
        if h.startswith('S0'):
            return 'Gal. lenticular'
        return TIPO_GALAXIA.get(h[:1], 'Galaxia')
    return TIPO[fila['type']]


def _magnitud(fila):
    # OpenNGC's V for globular clusters is no integrated magnitude (M71 came
    # out brighter than M13): SEDS's visual magnitudes are.
    if fila['type'] == 'GCl' and fila['mag_seds_d3']:
        return '%4.1f' % float(fila['mag_seds_d3'])
    v = fila['vmag'] or fila['mag_seds_d3']
    return '%4.1f' % float(v)


def registros(fuentes):
    filas = {int(f['messier'][1:]): f for f in binario.lee_csv(
        os.path.join(fuentes, 'cielo_profundo', 'messier_openngc.csv'))}
    hubble = _hubble(fuentes)
    salida = []
    for m in range(1, NUM_MESSIER + 1):
        f = filas[m]
        if m == 102:
            gemela = filas[101]
            codigo, numero = CODIGO['G'], _numero(101, gemela) + '?'
            tipo, magnitud = 'Dudoso (¿M101?)', _magnitud(gemela)
            ar, dec = binario.horas_grados(gemela['ra'], gemela['dec'])
        else:
            codigo, numero = CODIGO[f['type']], _numero(m, f)
            tipo, magnitud = _tipo(f, hubble), _magnitud(f)
            ar, dec = binario.horas_grados(f['ra'], f['dec'])
        constelacion = {'Se1': 'Ser', 'Se2': 'Ser'}.get(f['const'], f['const'])
        nombre = NOMBRES.get(m) or f['designation'] or numero
        salida.append(binario.texto(codigo, 1) + binario.texto(numero, 6)
                      + binario.simple(ar) + binario.simple(dec) + binario.texto(magnitud, 4)
                      + binario.texto(tipo.ljust(16) + ' ' + constelacion, 20)
                      + binario.texto(nombre, 15) + binario.vector(ar, dec))
    return salida


def escribe_vdrdatg(fuentes, salida):
    return binario.escribe(salida, 'VDRDATG.DAT', registros(fuentes), 66)
