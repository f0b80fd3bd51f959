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
import os
import sys

from recursos_controles import mapa_controles
from recursos_cursores import CURSORES
from recursos_sonidos import SONIDOS, chasquido, escribe_wav


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
