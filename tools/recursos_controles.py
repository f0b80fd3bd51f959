"""The control bitmap: every drawn control copies its cells from it."""


from recursos_lienzo import *  # noqa: F401,F403 (the colours and the raster)


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
