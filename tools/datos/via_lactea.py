"""VDRDATD.DAT: 900 sky points of three Singles, the Milky Way outline.

Each record is a direction x, y, z; a record of three zeros (no direction
has length 0) ends a stroke, and the records left after the outline are
zeros too. The source's tile pieces are chained into polylines (a piece
joins the one that ends where it starts, or starts where it ends), lone points dropped, and
each polyline thinned by keeping a point only when it lies at least a
fixed angle from the last kept one; its last point is always kept. The
angle is the smallest, in steps of 0.01 degree, that lets everything fit.
"""
import math
import os

from . import binario

NUM_PUNTOS = 900


def _piezas(fuentes):
    piezas = []
    for f in binario.lee_csv(os.path.join(fuentes, 'via_lactea', 'via_lactea_kstars.csv')):
        punto = (f['ra_h'], f['dec_deg'])
        if f['pen'] in ('M', 'S'):
            piezas.append([punto])
        else:
            piezas[-1].append(punto)
    return [p for p in piezas if len(p) > 1]


def polilineas(fuentes):
    """Chains the pieces; returns polylines of (ra, dec) in radians."""
    piezas = _piezas(fuentes)
    cadenas = []
    while piezas:
        cadena = piezas.pop(0)
        unida = True
        while unida:
            unida = False
            for k, p in enumerate(piezas):
                if p[0] == cadena[-1]:
                    cadena = cadena + p[1:]
                elif p[-1] == cadena[0]:
                    cadena = p + cadena[1:]
                else:
                    continue
                piezas.pop(k)
                unida = True
                break
        cadenas.append(cadena)
    return [[(binario.normaliza_ar(math.radians(15.0 * float(a))), math.radians(float(d)))
             for a, d in c] for c in cadenas]


def _angulo(a, b):
    (ar1, d1), (ar2, d2) = a, b
    c = math.sin(d1) * math.sin(d2) + math.cos(d1) * math.cos(d2) * math.cos(ar1 - ar2)
    return math.acos(max(-1.0, min(1.0, c)))


def _aclara(linea, minimo):
    puntos = [linea[0]]
    for p in linea[1:-1]:
        if _angulo(puntos[-1], p) >= minimo:
            puntos.append(p)
    puntos.append(linea[-1])
    return puntos


def trazos(fuentes):
    lineas = polilineas(fuentes)
    centesimas = 0
    while True:
        minimo = math.radians(centesimas / 100.0)
        aclaradas = [_aclara(l, minimo) for l in lineas]
        if sum(len(l) + 1 for l in aclaradas) <= NUM_PUNTOS:
            return aclaradas, centesimas / 100.0
        centesimas += 1


def escribe_vdrdatd(fuentes, salida):
    lineas, _ = trazos(fuentes)
    corte = binario.simple(0.0) * 3
    registros = []
    for l in lineas:
        registros += [binario.vector(ar, dec) for ar, dec in l]
        registros.append(corte)
    registros += [corte] * (NUM_PUNTOS - len(registros))
    return binario.escribe(salida, 'VDRDATD.DAT', registros, 12)
