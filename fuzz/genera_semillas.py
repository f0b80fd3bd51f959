#!/usr/bin/env python3
"""Seeds of the fuzz corpora, from the program's own files.

    python3 fuzz/genera_semillas.py

Writes fuzz/corpus/<objetivo>/: sample configurations, the head of every
data file (the whole of the small ones), calculator lines, angle and date
texts and command lines. Seeds stay small: the fuzzer grows them."""
import pathlib
import struct

RAIZ = pathlib.Path(__file__).resolve().parent.parent
CORPUS = RAIZ / "fuzz" / "corpus"
FICHEROS = ["VDRDAT1.DAT", "VDRDAT2.DAT", "VDRDAT3.DAT", "VDRDAT4.DAT", "VDRDAT5.DAT", "VDRDATA.DAT",
            "VDRDATB.DAT", "VDRDATC.DAT", "VDRDATD.DAT", "VDRDATE.DAT", "VDRDATF.DAT", "VDRDATG.DAT",
            "VDRDATH.DAT", "VDRDATI.DAT", "VDRDATJ.DAT", "VDRDATK.DAT", "VDRDATL.DAT", "VDRDATM.DAT"]
MAXIMO = 2048


def escribe(objetivo, nombre, datos):
    carpeta = CORPUS / objetivo
    carpeta.mkdir(parents=True, exist_ok=True)
    if isinstance(datos, str):
        datos = datos.encode("cp1252")
    (carpeta / nombre).write_bytes(datos)


def configuraciones():
    muestras = sorted((RAIZ / "Archivo").glob("*.ls1"))
    for i, m in enumerate(muestras[:5]):
        escribe("configuracion", f"muestra{i}", m.read_bytes())
    inicial = (RAIZ / "Archivo" / "Inicial.ls1").read_bytes()
    primera, resto = inicial.split(b"\r\n", 1)
    items = primera.split(b",")
    for n, (k, v) in enumerate([(4, b"600"), (4, b"1.7976931348623157E+308"), (5, b"-0.1"), (6, b"1E+39")]):
        cambiada = items[:k] + [v] + items[k + 1:]
        escribe("configuracion", f"fuera{n}", b",".join(cambiada) + b"\r\n" + resto)
    escribe("configuracion", "velocidad", inicial.replace(b",50,", b",-400,"))


def catalogos():
    for i, f in enumerate(FICHEROS):
        datos = (RAIZ / "Datos" / f).read_bytes()
        escribe("catalogo", f"{i:02d}_{f}", bytes([i]) + datos[:MAXIMO])
    escribe("catalogo", "cuentas_fuera", bytes([FICHEROS.index("VDRDATA.DAT")]) + struct.pack("<64h", *[32767] * 64))
    estrella = struct.pack("<fh3f", -30000.0, 0, 0.0, 1.0, 0.0)
    escribe("catalogo", "magnitud", bytes([0]) + estrella * 64)


def calculadora():
    lineas = [
        'FechaAJuliana " 1 1 200012 0"', "JulianaAFecha 2451545", "TextoHoras 4.9093", "ArcoTangente 1 0",
        "EsBisiesto 2000", 'ArmaCadenaFecha 2000 1 1 12 0', "TextoFechaHora 2451545",
        "AvanzaTiempo 2451545 3 1", "HallaTiempoSidereo 2451545 0.08", "HallaSol 2451545",
        "HallaSolAparente 2451545", "HallaPlaneta 5 2451545", "HallaLuna 2451545", "HallaPrecesion 2451545",
        "AplicaPrecesion 1 0.5", "EcuatorialAHorizontal 1 0.5 0.3 0.6", "AngulosAVector 1 0.5",
        "VectorAAngulos 0.1 0.2 0.9", "EclipticaAEcuatorial 1", "TextoSexagesimal -0.1",
        "TextoLatitud 0.64", "TextoLongitud 6.1", "TextoDireccion -1e28", "TextoGrados 0.7",
        'LeeAngulo " 40\xb0 25\' 00"" N"', "ProyectaPunto 0.1 0.2 0.97 2 3.14 0.7",
        "PuntoACielo 0.1 0.1 2 3.14 0.7", "Umbral 2",
    ]
    for i in range(0, len(lineas), 4):
        escribe("calculadora", f"lineas{i // 4}", "\n".join(lineas[i:i + 4]) + "\n")


def textos():
    for i, t in enumerate([' 40\xb0 25\' 00" N', '  3\xb0 41\' 00" O', '  1 1 200012 0', '-4712 1 1 0 0',
                           "2451545.5", "12:30", "-12.5E+3", "  7999 12 31 23 59"]):
        escribe("textos", f"texto{i}", t)
    escribe("textos", "numero", struct.pack("<d", -1e28))


def argumentos():
    for i, a in enumerate([["calcula", "--datos", "Datos"], ["dibuja", "--config", "Inicial.ls1", "--salida", "c.png"],
                           ["dibuja", "--ancho=20", "--alto", "99999", "--salida", "c.pdf"],
                           ["configuracion", "--lee", "A.ls1", "--escribe", "B.ls1"], ["lista", "Estrellas"],
                           ["--help"], ["dibuja", "-h"], ["Inicial.ls1"]]):
        escribe("argumentos", f"linea{i}", "\0".join(a).encode("utf-8"))


if __name__ == "__main__":
    configuraciones()
    catalogos()
    calculadora()
    textos()
    argumentos()
