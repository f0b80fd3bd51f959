"""VDRDATE.DAT (constellations), VDRDATB.DAT (stick figures) and
VDRDATC.DAT (IAU boundaries).

VDRDATE record (94 bytes): level Integer; abbreviation String*3; Latin name,
genitive and Spanish name String*20 each; "Visible" String*9; a 20-byte
block: label RA and Dec Singles and the label direction. Alphabetical by
abbreviation.

VDRDATB and VDRDATC record (14 bytes): pen code Integer (1 starts a stroke,
0 draws from the previous point) and a direction.
"""
import math
import os
from collections import defaultdict

from . import binario

NUM_CONSTELACIONES = 88
NUM_PUNTOS_FIGURAS = 873
# Below this declination of the label a faint constellation belongs to the
# far south (level 4): from Spain it never stands well above the horizon.
DEC_SUR_LEJANO = -35.0
NOMBRES_CASTELLANOS_CORTOS = {'Cabellera de Berenice': 'Cabellera Berenice'}
# The zodiac as Spanish astronomers name it, not translated word by word
# ("Carnero", "Gemelos", "Virgen", "Balanza"...).
NOMBRES_ZODIACO = {'Ari': 'Aries', 'Tau': 'Tauro', 'Gem': 'Géminis', 'Cnc': 'Cáncer', 'Vir': 'Virgo',
                   'Lib': 'Libra', 'Sco': 'Escorpio', 'Sgr': 'Sagitario', 'Cap': 'Capricornio',
                   'Aqr': 'Acuario', 'Psc': 'Piscis'}


def _nivel(fila):
    rango = int(fila['rank_d3'])
    if rango < 3:
        return rango
    return 3 if float(fila['label_dec_deg_d3']) >= DEC_SUR_LEJANO else 4


def constelaciones(fuentes):
    filas = binario.lee_csv(os.path.join(fuentes, 'constelaciones', 'constelaciones.csv'))
    filas.sort(key=lambda f: binario.clave_alfabetica(f['abbr']))
    for f in filas:
        f['nivel'] = _nivel(f)
    return filas


def _declinaciones_extremas(fuentes):
    extremos = {}
    for p in binario.lee_csv(os.path.join(fuentes, 'constelaciones', 'limites_iau_j2000.csv')):
        clave = 'SER' if p['const'].startswith('SR') else p['const']
        d = float(p['dec_deg'])
        lo, hi = extremos.get(clave, (d, d))
        extremos[clave] = (min(lo, d), max(hi, d))
    return extremos


def texto_visible(dec_min, dec_max):
    """Latitudes from which at least part of the constellation rises,
    "+90 a -56": north limit first, whole degrees rounded inwards."""
    norte = min(90, math.floor(dec_max + 90.0))
    sur = max(-90, math.ceil(dec_min - 90.0))
    return '%+03d a %+03d' % (norte, sur)


def escribe_vdrdate(fuentes, salida):
    extremos = _declinaciones_extremas(fuentes)
    registros = []
    for f in constelaciones(fuentes):
        ar, dec = binario.grados(f['label_ra_deg_d3'], f['label_dec_deg_d3'])
        castellano = NOMBRES_CASTELLANOS_CORTOS.get(f['name_es_cdc'], f['name_es_cdc'])
        castellano = NOMBRES_ZODIACO.get(f['abbr'], castellano)
        registros.append(binario.entero(f['nivel']) + binario.texto(f['abbr'], 3)
                         + binario.texto(f['latin'], 20) + binario.texto(f['genitive'], 20)
                         + binario.texto(castellano, 20)
                         + binario.texto(texto_visible(*extremos[f['abbr'].upper()]), 9)
                         + binario.posicion(ar, dec))
    return binario.escribe(salida, 'VDRDATE.DAT', registros, 94)


def _trazos(segmentos):
    """Chains one constellation's segments into few polylines: each walk
    starts at a star with an odd number of unused segments when there is
    one, and follows unused segments in file order until it is stuck."""
    vecinos = defaultdict(list)
    for n, (a, b) in enumerate(segmentos):
        vecinos[a].append((n, b))
        vecinos[b].append((n, a))
    usado = [False] * len(segmentos)
    orden = []
    for a, b in segmentos:
        for h in (a, b):
            if h not in orden:
                orden.append(h)

    def libres(h):
        return [(n, o) for n, o in vecinos[h] if not usado[n]]

    trazos = []
    while not all(usado):
        impares = [h for h in orden if len(libres(h)) % 2 == 1]
        inicio = impares[0] if impares else next(h for h in orden if libres(h))
        trazo = [inicio]
        actual = inicio
        while libres(actual):
            n, otro = libres(actual)[0]
            usado[n] = True
            trazo.append(otro)
            actual = otro
        trazos.append(trazo)
    return trazos


def figuras(fuentes):
    """Points (pen, ra, dec, hip) ordered by constellation level, and the
    index of the last point of each level 1 to 4."""
    niveles = {f['abbr']: f['nivel'] for f in constelaciones(fuentes)}
    segmentos = defaultdict(list)
    posicion = {}
    for s in binario.lee_csv(os.path.join(fuentes, 'constelaciones',
                                          'figuras_stellarium_western.csv')):
        segmentos[s['abbr']].append((s['hip1'], s['hip2']))
        posicion[s['hip1']] = binario.grados(s['ra1_deg'], s['dec1_deg'])
        posicion[s['hip2']] = binario.grados(s['ra2_deg'], s['dec2_deg'])
    puntos = []
    ultimo = {}
    for abbr in sorted(segmentos, key=lambda a: (niveles[a], binario.clave_alfabetica(a))):
        for trazo in _trazos(segmentos[abbr]):
            for k, hip in enumerate(trazo):
                puntos.append((1 if k == 0 else 0,) + posicion[hip] + (hip,))
        ultimo[niveles[abbr]] = len(puntos) - 1
    if len(puntos) > NUM_PUNTOS_FIGURAS:
        raise ValueError('las figuras necesitan %d puntos' % len(puntos))
    for nivel in range(1, 5):
        ultimo.setdefault(nivel, ultimo.get(nivel - 1, -1))
    return puntos, ultimo


def escribe_vdrdatb(fuentes, salida):
    """Writes the figures; returns the last point of each level and the
    Hipparcos number of every record (the padding repeats the last)."""
    puntos, ultimo = figuras(fuentes)
    registros = [binario.entero(p) + binario.vector(ar, dec) for p, ar, dec, _ in puntos]
    # Unused room: pen-up copies of the last point, which draw nothing.
    relleno = binario.entero(1) + binario.vector(puntos[-1][1], puntos[-1][2])
    hips = [p[3] for p in puntos] + [puntos[-1][3]] * (NUM_PUNTOS_FIGURAS - len(registros))
    registros += [relleno] * (NUM_PUNTOS_FIGURAS - len(registros))
    binario.escribe(salida, 'VDRDATB.DAT', registros, 14)
    return ultimo, hips


def escribe_vdrdatc(fuentes, salida):
    """Each shared border once, in the order of the source."""
    registros = []
    arista = None
    for p in binario.lee_csv(os.path.join(fuentes, 'constelaciones',
                                          'limites_aristas_stellarium_j2000.csv')):
        ar, dec = binario.normaliza_ar(math.radians(15.0 * float(p['ra_h']))), \
            math.radians(float(p['dec_deg']))
        registros.append(binario.entero(1 if p['edge'] != arista else 0) + binario.vector(ar, dec))
        arista = p['edge']
    return binario.escribe(salida, 'VDRDATC.DAT', registros, 14)
