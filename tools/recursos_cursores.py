"""The five custom cursors, drawn from small masks and figures."""
import math

from recursos_lienzo import *  # noqa: F401,F403 (the colours and the raster)


MANO_INDICE = [
    "......XX",
    ".....XooX",
    ".....XooX",
    ".....XooX",
    ".....XooX",
    ".....XooXXX",
    ".....XooXooXXX",
    ".....XooXooXooXX",
    ".XX..XooXooXooXoX",
    "XooX.XooooooooXooX",
    "XoooXXoooooooooooX",
    ".XoooXoooooooooooX",
    "..XooooooooooooooX",
    "..XooooooooooooooX",
    "...XoooooooooooooX",
    "...XooooooooooooX",
    "....XoooooooooooX",
    "....XooooooooooX",
    ".....XoooooooooX",
    ".....XoooooooooX",
    ".....XXXXXXXXXXX",
]

MANO_ABIERTA = [
    "......XX..XX",
    ".....XooXXooX",
    ".....XooXXooXXX",
    "..XX.XooXXooXooX",
    ".XooXXooXXooXooX",
    ".XooXXooXXooXooX",
    ".XooXXooXXooXooX..XX",
    ".XooXXooXXooXooX.XooX",
    ".XooXooooooooooXXooX",
    ".XooooooooooooooXooX",
    ".XoooooooooooooooooX",
    ".XooooooooooooooooX",
    "..XoooooooooooooooX",
    "..XooooooooooooooX",
    "...XoooooooooooooX",
    "...XooooooooooooX",
    "....XooooooooooX",
    "....XooooooooooX",
    "....XXXXXXXXXXXX",
]

MANO_CERRADA = [
    "",
    "",
    "",
    ".....XX.XX.XX",
    "....XooXooXooXX",
    "....XooXooXooXoX",
    "..XXXooooooooXoX",
    ".XooXoooooooooooX",
    ".XoooooooooooooooX",
    "..XooooooooooooooX",
    "..XooooooooooooooX",
    "...XoooooooooooooX",
    "...XooooooooooooX",
    "....XoooooooooooX",
    "....XooooooooooX",
    "....XooooooooooX",
    "....XXXXXXXXXXXX",
]


def cursor_mapa(filas):
    l = Lienzo(32, 32, fondo=(0, 0, 0, 0))
    l.mapa(0, 0, filas, {"X": NEGRO, "o": BLANCO})
    return l


def contorno(l, mascara):
    """Blackens the pixels of the shape that touch its outside."""
    for j in range(l.alto):
        for i in range(l.ancho):
            if not mascara[j][i]:
                continue
            for di, dj in ((1, 0), (-1, 0), (0, 1), (0, -1)):
                a, b = i + di, j + dj
                if not (0 <= a < l.ancho and 0 <= b < l.alto) or not mascara[b][a]:
                    l.punto(i, j, NEGRO)
                    break


def figura_inclinada(partes):
    """Shapes given as polygons along a 45-degree axis from the bottom-left."""
    l = Lienzo(32, 32, fondo=(0, 0, 0, 0))
    for pol, color in partes:
        l.poligono(pol, color)
    mascara = [[l.px[j][i][3] != 0 for i in range(32)] for j in range(32)]
    contorno(l, mascara)
    return l


def a_lo_largo(t0, t1, ancho):
    """A band along the diagonal from (1, 30) up-right, from t0 to t1 along it."""
    ux, uy = math.sqrt(0.5), -math.sqrt(0.5)
    nx, ny = -uy, ux
    ox, oy = 1.0, 30.0
    h = ancho / 2
    return [(ox + ux * t0 + nx * h, oy + uy * t0 + ny * h),
            (ox + ux * t1 + nx * h, oy + uy * t1 + ny * h),
            (ox + ux * t1 - nx * h, oy + uy * t1 - ny * h),
            (ox + ux * t0 - nx * h, oy + uy * t0 - ny * h)]


def punta(t0, t1, ancho):
    ux, uy = math.sqrt(0.5), -math.sqrt(0.5)
    nx, ny = -uy, ux
    ox, oy = 1.0, 30.0
    h = ancho / 2
    return [(ox + ux * t0, oy + uy * t0),
            (ox + ux * t1 + nx * h, oy + uy * t1 + ny * h),
            (ox + ux * t1 - nx * h, oy + uy * t1 - ny * h)]


def lapiz():
    return figura_inclinada([
        (punta(0, 9, 8), (230, 190, 140)),
        (punta(0, 3.2, 2.9), (40, 40, 40)),
        (a_lo_largo(9, 30, 8), (250, 210, 0)),
        (a_lo_largo(30, 33, 8), (170, 170, 170)),
        (a_lo_largo(33, 38, 8), (240, 120, 140)),
    ])


def goma():
    return figura_inclinada([
        (a_lo_largo(0.5, 11, 14), (250, 250, 250)),
        (a_lo_largo(11, 26, 14), (70, 110, 220)),
    ])


# (number, name, picture, hot spot)
CURSORES = [
    (21, "ManoIndice", lambda: cursor_mapa(MANO_INDICE), (6, 0)),
    (22, "ManoAbierta", lambda: cursor_mapa(MANO_ABIERTA), (10, 9)),
    (23, "ManoCerrada", lambda: cursor_mapa(MANO_CERRADA), (10, 9)),
    (24, "Lapiz", lapiz, (1, 30)),
    (25, "Goma", goma, (3, 28)),
]
