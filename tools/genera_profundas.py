#!/usr/bin/env python3
"""Builds the deep star file VDRDATP.DAT from the open star catalogue.

    python3 tools/genera_profundas.py [FUENTES [DATOS]]

FUENTES is the folder of the star files (tools/fuentes/estrellas_profundas/
by default; its LEEME.md says what they are), DATOS the folder holding the
program's star table VDRDAT1.DAT and receiving VDRDATP.DAT (Datos/ of this
tree by default). Same sources, same bytes.

The source files keep the stars in the triangles of a subdivided
icosahedron, each star as two integer offsets along two axes of its
triangle (scaled so that the largest triangle's corners just fit), with a
magnitude step. This program decodes them to directions and magnitudes,
leaves out every star the program's own tables already hold, and writes
the program's own file (all little-endian):

    header   "VDRP", version (u16 = 1), 0 (u16), zone count (u32),
             star count (u32)
    zones    per zone: centre, east and north unit vectors (9 x f32),
             offset scale (f32), angular radius in radians (f32),
             index of its first star (u32), star count (u32)
    stars    per star: east and north offsets (2 x i16) and V magnitude in
             twentieths (u8)

Zones are bands of 5 degrees of declination cut into cells about 5 degrees
wide (the caps are one zone each); stars run zone after zone, brightest
first within a zone. A star's direction is the centre plus offset x scale
along each axis, normalised (a gnomonic plane). Directions are the
program's: x = -sin a cos d, y = sin d, z = cos a cos d, equinox J2000.
"""
import math
import os
import struct
import sys

HERRAMIENTAS = os.path.dirname(os.path.abspath(__file__))
FUENTES = os.path.join(HERRAMIENTAS, 'fuentes', 'estrellas_profundas')
DATOS = os.path.join(os.path.dirname(HERRAMIENTAS), 'Datos')

ARCHIVOS = ['stars_0_0v0_8.cat', 'stars_1_0v0_8.cat', 'stars_2_0v0_8.cat', 'stars_3_1v0_4.cat']
MAGNITUD_LIMITE = 10.5
# Stars brighter than this are all in the program's tables: one left over
# would be a second dot beside its own.
MAGNITUD_MINIMA = 6.5
# A source star this close to a star of the program's tables (whose
# places are rounded to some tens of seconds of arc), and within
# this much in magnitude, is that star.
MISMO_RADIO = math.radians(75 / 3600.0)
MISMA_MAGNITUD = 1.0
BANDA = 5.0  # degrees


def normaliza(v):
    n = math.sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2])
    return (v[0] / n, v[1] / n, v[2] / n)


def suma(a, b):
    return (a[0] + b[0], a[1] + b[1], a[2] + b[2])


def resta(a, b):
    return (a[0] - b[0], a[1] - b[1], a[2] - b[2])


def escala(a, k):
    return (a[0] * k, a[1] * k, a[2] * k)


def punto(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def cruz(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


# The source grid: an icosahedron whose triangles are cut in four, level
# after level, the corners of each new triangle being the old corners and
# the normalised midpoints of its sides.
_G = 0.5 * (1 + math.sqrt(5))
_B = 1 / math.sqrt(1 + _G * _G)
_A = _B * _G
ESQUINAS = [(_A, -_B, 0), (_A, _B, 0), (-_A, _B, 0), (-_A, -_B, 0), (0, _A, -_B), (0, _A, _B),
            (0, -_A, _B), (0, -_A, -_B), (-_B, 0, _A), (_B, 0, _A), (_B, 0, -_A), (-_B, 0, -_A)]
TRIANGULOS = [(1, 0, 10), (0, 1, 9), (0, 9, 6), (9, 8, 6), (0, 7, 10), (6, 7, 0), (7, 6, 3), (6, 8, 3),
              (11, 10, 7), (7, 3, 11), (3, 2, 11), (2, 3, 8), (10, 11, 4), (2, 4, 11), (5, 4, 2), (2, 8, 5),
              (4, 1, 10), (4, 5, 1), (5, 9, 1), (8, 9, 5)]


def triangulos(nivel):
    salida = [None] * (20 * 4 ** nivel)

    def parte(lev, indice, c0, c1, c2):
        if lev == nivel:
            salida[indice] = (c0, c1, c2)
            return
        e0, e1, e2 = normaliza(suma(c1, c2)), normaliza(suma(c2, c0)), normaliza(suma(c0, c1))
        parte(lev + 1, indice * 4 + 0, c0, e2, e1)
        parte(lev + 1, indice * 4 + 1, e2, c1, e0)
        parte(lev + 1, indice * 4 + 2, e1, e0, c2)
        parte(lev + 1, indice * 4 + 3, e0, e1, e2)

    for i, (a, b, c) in enumerate(TRIANGULOS):
        parte(0, i, ESQUINAS[a], ESQUINAS[b], ESQUINAS[c])
    return salida


def ejes(nivel, maximo):
    """Centre and the two scaled offset axes of every triangle of a level."""
    norte = (0.0, 0.0, 1.0)
    zonas, escala_pos = [], 0.0
    for esquinas in triangulos(nivel):
        centro = normaliza(suma(suma(esquinas[0], esquinas[1]), esquinas[2]))
        eje0 = normaliza(cruz(norte, centro))
        eje1 = cruz(centro, eje0)
        for c in esquinas:
            mu0, mu1 = punto(resta(c, centro), eje0), punto(resta(c, centro), eje1)
            f = 1 / math.sqrt(1 - mu0 * mu0 - mu1 * mu1)
            escala_pos = max(escala_pos, abs(mu0) * f, abs(mu1) * f)
        zonas.append((centro, eje0, eje1))
    k = escala_pos / maximo
    return [(c, escala(a0, k), escala(a1, k)) for c, a0, a1 in zonas]


def con_signo(valor, bits):
    return valor - (1 << bits) if valor & (1 << (bits - 1)) else valor


def lee_catalogo(ruta):
    """Yields (direction in the source frame, V magnitude) of every star."""
    with open(ruta, 'rb') as f:
        datos = f.read()
    magia, tipo, _, _, nivel = struct.unpack_from('<5I', datos, 0)
    mag_min, mag_rango, mag_pasos = struct.unpack_from('<3i', datos, 20)
    if magia != 0x835F040A or tipo not in (0, 1):
        raise ValueError('%s: no es un fichero de estrellas conocido' % ruta)
    n_zonas = 20 * 4 ** nivel
    cuentas = struct.unpack_from('<%dI' % n_zonas, datos, 32)
    pos = 32 + 4 * n_zonas
    tam = 28 if tipo == 0 else 10
    if pos + tam * sum(cuentas) != len(datos):
        raise ValueError('%s: el tamaño no cuadra con las cuentas de sus zonas' % ruta)
    zonas = ejes(nivel, 0x7FFFFFFF if tipo == 0 else (1 << 19) - 1)
    esquinas = triangulos(nivel)
    for zona, cuenta in enumerate(cuentas):
        centro, a0, a1 = zonas[zona]
        c0, c1, c2 = esquinas[zona]
        lados = (cruz(c0, c1), cruz(c1, c2), cruz(c2, c0))
        for _ in range(cuenta):
            if tipo == 0:
                x0, x1, _, mag = struct.unpack_from('<iiBB', datos, pos + 4)
            else:
                b = int.from_bytes(datos[pos:pos + 10], 'little')
                x0, x1, mag = con_signo(b & 0xFFFFF, 20), con_signo((b >> 20) & 0xFFFFF, 20), b >> 75
            pos += tam
            v = normaliza(suma(suma(escala(a0, x0), escala(a1, x1)), centro))
            # A star decoded right lies in its own triangle (up to the
            # drift of its proper motion from the catalogue's epoch).
            if min(punto(l, v) for l in lados) < -1e-4:
                raise ValueError('%s: una estrella cae fuera de su zona %d' % (ruta, zona))
            yield v, (mag_min + mag * mag_rango / mag_pasos) / 1000.0


def estrellas_propias(ruta):
    """Directions (program's frame) and magnitudes of VDRDAT1.DAT."""
    with open(ruta, 'rb') as f:
        datos = f.read()
    return [(struct.unpack_from('<3f', datos, i + 6), struct.unpack_from('<f', datos, i)[0])
            for i in range(0, len(datos) - 17, 18)]


def celda(v):
    return (int(math.floor(v[0] * 200)), int(math.floor(v[1] * 200)), int(math.floor(v[2] * 200)))


def zonas_del_cielo():
    """Bands of BANDA degrees, each cut into cells about BANDA wide."""
    zonas = []
    bandas = int(180 / BANDA)
    for b in range(bandas):
        d0, d1 = -90 + b * BANDA, -90 + (b + 1) * BANDA
        dc = math.radians((d0 + d1) / 2)
        n = 1 if b in (0, bandas - 1) else max(1, int(round(360 * math.cos(dc) / BANDA)))
        for k in range(n):
            if n == 1:
                polo = 1.0 if d1 > 0 else -1.0
                centro, este = (0.0, polo, 0.0), (-1.0, 0.0, 0.0)
            else:
                ac = math.radians((k + 0.5) * 360.0 / n)
                centro = (-math.sin(ac) * math.cos(dc), math.sin(dc), math.cos(ac) * math.cos(dc))
                este = normaliza(cruz((0.0, 1.0, 0.0), centro))
            zonas.append({'b': b, 'n': n, 'k': k, 'centro': centro, 'este': este,
                          'norte': cruz(centro, este), 'estrellas': []})
    return zonas, bandas


def indice_zona(v, zonas, primeras, bandas):
    d = math.degrees(math.asin(max(-1.0, min(1.0, v[1]))))
    b = min(bandas - 1, int((d + 90) / BANDA))
    z0 = primeras[b]
    n = zonas[z0]['n']
    a = math.atan2(-v[0], v[2]) % (2 * math.pi)
    return z0 + min(n - 1, int(a / (2 * math.pi) * n))


def genera(fuentes, datos):
    propias = estrellas_propias(os.path.join(datos, 'VDRDAT1.DAT'))
    rejilla = {}
    for v, m in propias:
        rejilla.setdefault(celda(v), []).append((v, m))
    cos_mismo = math.cos(MISMO_RADIO)
    zonas, bandas = zonas_del_cielo()
    primeras = {}
    for i, z in enumerate(zonas):
        primeras.setdefault(z['b'], i)
    leidas = repetidas = 0
    for nombre in ARCHIVOS:
        for s, m in lee_catalogo(os.path.join(fuentes, nombre)):
            if m > MAGNITUD_LIMITE or m <= MAGNITUD_MINIMA:
                continue
            leidas += 1
            v = (-s[1], s[2], s[0])  # the source's x points to 0h on the equator, z to the pole
            c = celda(v)
            if any(punto(v, w) >= cos_mismo and abs(m - mw) <= MISMA_MAGNITUD
                   for dx in (-1, 0, 1) for dy in (-1, 0, 1) for dz in (-1, 0, 1)
                   for w, mw in rejilla.get((c[0] + dx, c[1] + dy, c[2] + dz), ())):
                repetidas += 1
                continue
            zonas[indice_zona(v, zonas, primeras, bandas)]['estrellas'].append((int(round(m * 20)), v))

    cabeza, cuerpo, primera = [], [], 0
    for z in zonas:
        z['estrellas'].sort()
        centro, este, norte = z['centro'], z['este'], z['norte']
        planos = []
        radio = 0.0
        for m20, v in z['estrellas']:
            k = punto(v, centro)
            planos.append((punto(v, este) / k, punto(v, norte) / k, m20))
            radio = max(radio, math.acos(max(-1.0, min(1.0, k))))
        extremo = max([max(abs(x), abs(y)) for x, y, _ in planos] or [1.0])
        paso = extremo / 32767.0
        for x, y, m20 in planos:
            cuerpo.append(struct.pack('<hhB', int(round(x / paso)), int(round(y / paso)), m20))
        cabeza.append(struct.pack('<11f2I', *centro, *este, *norte, paso, radio, primera, len(planos)))
        primera += len(planos)
    with open(os.path.join(datos, 'VDRDATP.DAT'), 'wb') as f:
        f.write(b'VDRP' + struct.pack('<HHII', 1, 0, len(zonas), primera))
        f.write(b''.join(cabeza))
        f.write(b''.join(cuerpo))
    return leidas, repetidas, primera, len(zonas)


def main(argumentos):
    if len(argumentos) > 3:
        print('Uso: genera_profundas.py [CARPETA_FUENTES [CARPETA_DATOS]]', file=sys.stderr)
        return 2
    fuentes = argumentos[1] if len(argumentos) > 1 else FUENTES
    datos = argumentos[2] if len(argumentos) > 2 else DATOS
    try:
        leidas, repetidas, escritas, zonas = genera(fuentes, datos)
    except (OSError, ValueError, struct.error) as e:
        print('No se ha podido generar VDRDATP.DAT: %s' % e, file=sys.stderr)
        return 1
    print('%d estrellas hasta V %.1f, %d ya en las tablas, %d escritas en %d zonas'
          % (leidas, MAGNITUD_LIMITE, repetidas, escritas, zonas))
    return 0


if __name__ == '__main__':
    sys.exit(main(sys.argv))
