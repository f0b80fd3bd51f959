"""The raster the resource pictures are drawn on, written as PNG, and the
colours of the classic grey look. Standard library only."""
import math
import struct
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
