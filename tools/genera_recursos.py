#!/usr/bin/env python3
"""Draws the pictures and sounds of the custom-drawn controls.

    python3 tools/genera_recursos.py [SALIDA]

Writes into SALIDA (resources/ by default):
  controles.png          the control bitmap: every control copies its cells from it
  controles@2x.png       the same at two device pixels a pixel, for hi-DPI screens
  cursores/NN_Nombre.png the five custom cursors, 21 to 25 (hot spot in cursores/puntos.txt)
  sonidos/N.wav          the four click sounds, 4, 6, 7 and 9

Standard library only, and deterministic: the same run gives the same bytes.
"""
import math
import os
import struct
import sys
import wave
import zlib

# Colours of the classic grey look.
BLANCO = (255, 255, 255)
CLARO = (223, 223, 223)
GRIS = (192, 192, 192)
OSCURO = (128, 128, 128)
NEGRO = (0, 0, 0)
AZUL = (0, 0, 255)
AZUL_CLARO = (96, 160, 255)
VERDE = (0, 230, 0)
VERDE_CLARO = (190, 255, 190)
VERDE_APAGADO = (0, 72, 0)
VERDE_MEDIO = (0, 110, 0)
ROJO = (200, 0, 0)


class Lienzo:
    """An RGBA raster with the few drawing operations the cells need.

    Coordinates are pixels of the 1x picture; with escala k each of them is
    k x k device pixels, and polygons and circles are filled on the finer
    grid, so their edges are as sharp as the device allows.
    """

    def __init__(self, ancho, alto, fondo=GRIS + (255,), escala=1):
        self.ancho, self.alto, self.k = ancho, alto, escala
        self.px = [[fondo for _ in range(ancho * escala)] for _ in range(alto * escala)]

    def fino(self, i, j, color):
        """One device pixel."""
        if 0 <= i < self.ancho * self.k and 0 <= j < self.alto * self.k:
            self.px[j][i] = color if len(color) == 4 else color + (255,)

    def punto(self, x, y, color):
        for j in range(y * self.k, (y + 1) * self.k):
            for i in range(x * self.k, (x + 1) * self.k):
                self.fino(i, j, color)

    def color(self, x, y):
        return self.px[y * self.k][x * self.k]

    def rect(self, x, y, w, h, color):
        for j in range(y, y + h):
            for i in range(x, x + w):
                self.punto(i, j, color)

    def hlinea(self, x0, x1, y, color):
        for i in range(x0, x1 + 1):
            self.punto(i, y, color)

    def vlinea(self, x, y0, y1, color):
        for j in range(y0, y1 + 1):
            self.punto(x, j, color)

    def bisel(self, x, y, w, h, hundido=False):
        """Windows-style two-pixel bevel around a w x h box."""
        luz1, luz2, som1, som2 = BLANCO, CLARO, NEGRO, OSCURO
        if hundido:
            luz1, luz2, som1, som2 = NEGRO, OSCURO, BLANCO, CLARO
        self.hlinea(x, x + w - 1, y + h - 1, som1)
        self.vlinea(x + w - 1, y, y + h - 1, som1)
        self.hlinea(x, x + w - 2, y, luz1)
        self.vlinea(x, y, y + h - 2, luz1)
        self.hlinea(x + 1, x + w - 2, y + h - 2, som2)
        self.vlinea(x + w - 2, y + 1, y + h - 2, som2)
        self.hlinea(x + 1, x + w - 3, y + 1, luz2)
        self.vlinea(x + 1, y + 1, y + h - 3, luz2)

    def poligono(self, puntos, color):
        """Fills the device pixels whose centres lie inside the polygon."""
        k = self.k
        puntos = [(x * k, y * k) for x, y in puntos]
        ys = [p[1] for p in puntos]
        for j in range(max(0, int(min(ys))), min(self.alto * k, int(max(ys)) + 1)):
            cy = j + 0.5
            cortes = []
            n = len(puntos)
            for k in range(n):
                (x0, y0), (x1, y1) = puntos[k], puntos[(k + 1) % n]
                if (y0 <= cy < y1) or (y1 <= cy < y0):
                    cortes.append(x0 + (cy - y0) * (x1 - x0) / (y1 - y0))
            cortes.sort()
            for a, b in zip(cortes[::2], cortes[1::2]):
                for i in range(max(0, math.ceil(a - 0.5)), min(self.ancho * k, math.floor(b - 0.5) + 1)):
                    self.fino(i, j, color)

    def circulo(self, cx, cy, r, color):
        k = self.k
        cx, cy, r = cx * k, cy * k, r * k
        for j in range(int(cy - r) - 1, int(cy + r) + 2):
            for i in range(int(cx - r) - 1, int(cx + r) + 2):
                if (i + 0.5 - cx) ** 2 + (j + 0.5 - cy) ** 2 <= r * r:
                    self.fino(i, j, color)

    def mapa(self, x, y, filas, colores):
        """Paints a character map; '.' leaves the pixel as it is."""
        for j, fila in enumerate(filas):
            for i, c in enumerate(fila):
                if c in colores:
                    self.punto(x + i, y + j, colores[c])

    def png(self, ruta):
        crudo = b"".join(b"\x00" + bytes(c for p in fila for c in p) for fila in self.px)

        def trozo(tipo, datos):
            return (struct.pack(">I", len(datos)) + tipo + datos +
                    struct.pack(">I", zlib.crc32(tipo + datos) & 0xFFFFFFFF))

        cabecera = struct.pack(">IIBBBBB", self.ancho * self.k, self.alto * self.k, 8, 6, 0, 0, 0)
        with open(ruta, "wb") as f:
            f.write(b"\x89PNG\r\n\x1a\n" + trozo(b"IHDR", cabecera) +
                    trozo(b"IDAT", zlib.compress(crudo, 9)) + trozo(b"IEND", b""))


# --- The control bitmap ----------------------------------------------------

def flecha_vertical(l, x, y, arriba, color):
    """A 7-pixel-wide solid triangle inside a 17 x 10 half cell."""
    for k in range(4):
        fila = y + 3 + (k if arriba else 3 - k)
        l.hlinea(x + 8 - k, x + 8 + k, fila, color)


def media_tecla(l, x, y, arriba, encendida):
    l.rect(x, y, 17, 10, GRIS)
    l.bisel(x, y, 17, 10)
    flecha_vertical(l, x, y, arriba, AZUL if encendida else NEGRO)
    if encendida:
        # A lighter face around the lit arrow, kept inside the bevel.
        for j in range(y + 2, y + 8):
            for i in range(x + 2, x + 15):
                if l.color(i, j)[:3] == GRIS:
                    l.punto(i, j, (208, 216, 240))


def columna_flechas(l, x, encendida):
    """Rows 24..33 the up (or right) key, row 34 a gap, rows 35..44 the down
    (or left) key: the spin field reads the lower half from row 34 and the
    arrow pair from row 35, and both see a whole key."""
    media_tecla(l, x, 24, True, encendida)
    l.hlinea(x, x + 16, 34, GRIS)
    media_tecla(l, x, 35, False, encendida)


def interruptor(l, x, y, encendido):
    l.rect(x, y, 17, 17, GRIS)
    l.bisel(x, y, 17, 17, hundido=True)
    l.rect(x + 2, y + 2, 13, 13, (64, 64, 64) if not encendido else (24, 48, 24))
    if encendido:
        l.circulo(x + 8.5, y + 8.5, 5.6, VERDE_MEDIO)
        l.circulo(x + 8.5, y + 8.5, 4.6, VERDE)
        l.circulo(x + 7.0, y + 7.0, 1.8, VERDE_CLARO)
    else:
        l.circulo(x + 8.5, y + 8.5, 5.6, (40, 40, 40))
        l.circulo(x + 8.5, y + 8.5, 4.6, VERDE_APAGADO)
        l.circulo(x + 7.0, y + 7.0, 1.5, (0, 110, 0))


def cara_boton(l, y, pulsado):
    l.rect(0, y, 131, 23, GRIS)
    l.bisel(0, y, 131, 23, hundido=pulsado)


def potenciometro(l):
    """The 121 x 23 track at (0, 0) and the 11 x 19 thumb cell at (0, 46 - 21)."""
    l.rect(0, 0, 121, 23, GRIS)
    # The groove.
    l.hlinea(4, 116, 9, OSCURO)
    l.hlinea(4, 116, 10, NEGRO)
    l.hlinea(4, 116, 11, (160, 160, 160))
    l.hlinea(4, 116, 12, BLANCO)
    l.vlinea(4, 9, 12, OSCURO)
    l.vlinea(116, 9, 12, BLANCO)
    # Eleven ticks under the groove, one every ten steps of the position.
    for k in range(11):
        x = 9 + 10 * k
        l.vlinea(x, 19, 22 if k % 5 == 0 else 21, OSCURO)


def cursor_potenciometro(l, x, y):
    l.rect(x, y, 11, 19, GRIS)
    l.bisel(x, y, 11, 19)
    l.vlinea(x + 5, y + 4, y + 14, OSCURO)
    l.vlinea(x + 6, y + 4, y + 14, BLANCO)


INTERROGACION = [
    "..XXXXX..",
    ".XXX.XXX.",
    "XXX...XXX",
    "......XXX",
    ".....XXX.",
    "....XXX..",
    "...XXX...",
    "...XXX...",
    ".........",
    "...XXX...",
    "...XXX...",
]


def boton_dialogo(l, x, y, tipo, pulsado):
    l.rect(x, y, 32, 32, GRIS)
    l.bisel(x, y, 32, 32, hundido=pulsado)
    d = 1 if pulsado else 0
    x, y = x + d, y + d
    if tipo == "salir":
        # An open door with an arrow leaving through it.
        l.rect(x + 7, y + 6, 12, 20, (96, 64, 32))
        l.rect(x + 9, y + 8, 8, 18, NEGRO)
        l.poligono([(x + 9, y + 9), (x + 15, y + 7), (x + 15, y + 27), (x + 9, y + 25)], (176, 120, 64))
        l.punto(x + 14, y + 17, (255, 220, 0))
        l.rect(x + 18, y + 15, 6, 3, ROJO)
        l.poligono([(x + 23, y + 11.5), (x + 28, y + 16.5), (x + 23, y + 21.5)], ROJO)
    elif tipo == "ayuda":
        l.circulo(x + 16, y + 16, 11, (0, 0, 160))
        l.circulo(x + 16, y + 16, 10, AZUL)
        l.mapa(x + 12, y + 10, INTERROGACION, {"X": BLANCO})
    else:
        puntos = [(x + 6, y + 16), (x + 10, y + 12), (x + 14, y + 17), (x + 24, y + 6),
                  (x + 28, y + 10), (x + 14, y + 25)]
        l.poligono([(px + 1, py + 1) for px, py in puntos], (0, 80, 0))
        l.poligono(puntos, (0, 170, 0))


def mapa_controles(escala=1):
    l = Lienzo(240, 93, escala=escala)
    potenciometro(l)
    cursor_potenciometro(l, 0, 24)
    columna_flechas(l, 66, encendida=False)
    columna_flechas(l, 84, encendida=True)
    interruptor(l, 102, 24, encendido=False)
    interruptor(l, 120, 24, encendido=True)
    cara_boton(l, 46, pulsado=False)
    cara_boton(l, 70, pulsado=True)
    for k, tipo in enumerate(("salir", "ayuda", "aceptar")):
        boton_dialogo(l, 140 + 33 * k, 0, tipo, pulsado=False)
        boton_dialogo(l, 140 + 33 * k, 33, tipo, pulsado=True)
    return l


# --- Cursors ---------------------------------------------------------------

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


# --- Sounds ----------------------------------------------------------------

FRECUENCIA = 22050


class Azar:
    """A small linear congruential generator, so that the noise repeats."""

    def __init__(self, semilla):
        self.s = semilla

    def __call__(self):
        self.s = (1103515245 * self.s + 12345) & 0x7FFFFFFF
        return self.s / 0x7FFFFFFF * 2 - 1


def chasquido(muestras, tono, caida, ruido, semilla):
    """8-bit unsigned mono: a decaying tone with a touch of noise."""
    azar = Azar(semilla)
    datos = bytearray()
    for n in range(muestras):
        t = n / FRECUENCIA
        ataque = min(1.0, n / 22.0)
        env = ataque * math.exp(-t / caida)
        v = env * ((1 - ruido) * math.sin(2 * math.pi * tono * t) + ruido * azar())
        # Fade the last samples to silence so that no click is left at the end.
        cola = min(1.0, (muestras - n) / 40.0)
        datos.append(max(0, min(255, int(round(128 + 100 * v * cola)))))
    return bytes(datos)


# (number, bytes of the whole file, tone, decay in s, share of noise)
SONIDOS = [
    (4, 7008, 1750.0, 0.012, 0.15),
    (6, 912, 700.0, 0.010, 0.45),
    (7, 1108, 1200.0, 0.010, 0.35),
    (9, 520, 2400.0, 0.004, 0.30),
]


def escribe_wav(ruta, datos):
    with wave.open(ruta, "wb") as w:
        w.setnchannels(1)
        w.setsampwidth(1)
        w.setframerate(FRECUENCIA)
        w.writeframes(datos)


def genera(salida):
    os.makedirs(os.path.join(salida, "cursores"), exist_ok=True)
    os.makedirs(os.path.join(salida, "sonidos"), exist_ok=True)
    mapa_controles().png(os.path.join(salida, "controles.png"))
    mapa_controles(2).png(os.path.join(salida, "controles@2x.png"))
    puntos = []
    for numero, nombre, dibujo, (hx, hy) in CURSORES:
        dibujo().png(os.path.join(salida, "cursores", "%d_%s.png" % (numero, nombre)))
        puntos.append("%d %s %d %d\n" % (numero, nombre, hx, hy))
    with open(os.path.join(salida, "cursores", "puntos.txt"), "w", newline="\n") as f:
        f.write("# number name hot-spot-x hot-spot-y\n")
        f.writelines(puntos)
    for numero, total, tono, caida, ruido in SONIDOS:
        muestras = total - 44  # the canonical PCM header is 44 bytes
        escribe_wav(os.path.join(salida, "sonidos", "%d.wav" % numero),
                    chasquido(muestras, tono, caida, ruido, semilla=numero))


if __name__ == "__main__":
    raiz = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    genera(sys.argv[1] if len(sys.argv) > 1 else os.path.join(raiz, "resources"))
