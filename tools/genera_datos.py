#!/usr/bin/env python3
"""Builds VEDRANO's catalogue files from the staged open catalogues.

    python3 tools/genera_datos.py [FUENTES [SALIDA]]

FUENTES is the folder of the source catalogues (tools/fuentes/ of this
tree by default), SALIDA the folder that receives the files (Datos/ of this
tree by default). Same sources, same bytes.
"""
import importlib.util
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import genera_profundas  # noqa: E402
from datos import (cielo_profundo, constelaciones, estrellas, exoticos,  # noqa: E402
                   lugares, messier, niveles, via_lactea)


def genera(fuentes, salida):
    os.makedirs(salida, exist_ok=True)
    lugares.escribe_vdrdath(fuentes, salida)
    messier.escribe_vdrdatg(fuentes, salida)
    constelaciones.escribe_vdrdate(fuentes, salida)
    ultimo_figura, hips_figuras = constelaciones.escribe_vdrdatb(fuentes, salida)
    constelaciones.escribe_vdrdatc(fuentes, salida)
    clases = cielo_profundo.escribe_todas(fuentes, salida)
    magnitudes_nombre = estrellas.escribe_vdrdat2(fuentes, salida)
    magnitudes = estrellas.escribe_vdrdat1(fuentes, salida)
    estrellas.escribe_vdrdatn(fuentes, salida, hips_figuras)
    via_lactea.escribe_vdrdatd(fuentes, salida)
    exoticos.escribe_todos(fuentes, salida)
    niveles.escribe_vdrdata(salida, [
        niveles.por_magnitud(magnitudes, niveles.LIMITES_ESTRELLAS),
        niveles.por_magnitud(magnitudes_nombre, niveles.LIMITES_ETIQUETAS),
        niveles.por_nivel_figuras(ultimo_figura),
        niveles.por_clase(clases['VDRDAT3.DAT']),
        niveles.por_clase(clases['VDRDAT4.DAT']),
        niveles.por_clase(clases['VDRDAT5.DAT']),
        niveles.por_clase(clases['VDRDATI.DAT']),
        niveles.por_clase(clases['VDRDATJ.DAT']),
    ])
    # The deep stars leave out those of VDRDAT1.DAT, written above.
    genera_profundas.genera(os.path.join(fuentes, 'estrellas_profundas'), salida)
    # The solar-system file has its own builder, when it is present.
    if importlib.util.find_spec('datos.planetas') is not None:
        from datos import planetas
        planetas.escribe_vdrdatf(fuentes, salida)


HERRAMIENTAS = os.path.dirname(os.path.abspath(__file__))
FUENTES = os.path.join(HERRAMIENTAS, 'fuentes')
DATOS = os.path.join(os.path.dirname(HERRAMIENTAS), 'Datos')


def main(argumentos):
    if len(argumentos) > 3:
        print('Uso: genera_datos.py [CARPETA_FUENTES [CARPETA_SALIDA]]', file=sys.stderr)
        return 2
    fuentes = argumentos[1] if len(argumentos) > 1 else FUENTES
    salida = argumentos[2] if len(argumentos) > 2 else DATOS
    if not os.path.isdir(fuentes):
        print('No existe la carpeta de fuentes: %s' % fuentes, file=sys.stderr)
        return 1
    try:
        genera(fuentes, salida)
    except (OSError, ValueError, KeyError) as e:
        print('Error al generar los datos: %s' % e, file=sys.stderr)
        return 1
    return 0


if __name__ == '__main__':
    sys.exit(main(sys.argv))
