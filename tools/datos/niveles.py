"""VDRDATA.DAT: the count tables of the plotters.

Eight records of eight Integers; entry L of a record is the index of the
last record to draw at detail level L (0 to 7), -1 drawing none:
  1 stars (VDRDAT1)         magnitude up to LIMITES_ESTRELLAS[L]
  2 star labels (VDRDAT2)   magnitude up to LIMITES_ETIQUETAS[L]
  3 figure points (VDRDATB) constellations of level 1..L
  4 galaxies (VDRDAT3)      size classes 1..L
  5 planetary nebulae (VDRDAT4), 6 diffuse nebulae (VDRDAT5),
  7 open clusters (VDRDATI), 8 globular clusters (VDRDATJ): classes 1..L
Beyond a table's last class the entries repeat its last record.
"""
from . import binario

NIVELES = 8
# Level 1, the default, shows the sky of a town; level 7 every star.
LIMITES_ESTRELLAS = (1.5, 3.5, 4.0, 4.5, 5.0, 5.5, 6.5, 99.0)
LIMITES_ETIQUETAS = (0.5, 1.5, 2.0, 2.5, 3.0, 3.5, 4.0, 4.5)


def por_magnitud(magnitudes, limites):
    return [binario.ultimo_indice(magnitudes, l) for l in limites]


def por_clase(clases):
    return [-1] + [binario.ultimo_indice(clases, nivel) for nivel in range(1, NIVELES)]


def por_nivel_figuras(ultimo):
    return [-1] + [ultimo[min(nivel, 4)] for nivel in range(1, NIVELES)]


def escribe_vdrdata(salida, tablas):
    registros = []
    for tabla in tablas:
        if len(tabla) != NIVELES:
            raise ValueError('tabla de cuentas de %d niveles' % len(tabla))
        registros.append(b''.join(binario.entero(n) for n in tabla))
    return binario.escribe(salida, 'VDRDATA.DAT', registros, 2 * NIVELES)
