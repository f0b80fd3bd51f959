"""VDRDATF.DAT: mean orbital elements of the solar-system table.

Twelve records of 107 bytes: record 1 unused, records 2 to 12 for the
indices 1 to 11 (Mercury, Venus, Earth, Mars, Jupiter, Saturn, Uranus,
Neptune, Pluto, Sun, Moon). Each record: a 3-character code (Windows-1252,
blank padded), seven Doubles (mean daily motion in rad/day, mean longitude
at the time origin, longitude of perihelion, eccentricity, semi-major axis
in AU, inclination, longitude of the ascending node, all angles in radians),
then three Doubles and six Singles of result space left at zero.

Sources: E. M. Standish, "Keplerian Elements for Approximate Positions of
the Major Planets" (JPL), table 2a (3000 BC - 3000 AD), read from
planetas/elementos_keplerianos_jpl.csv of the staged sources. The Moon's
mean elements are the usual ones of the lunar theory (Chapront-Touze and
Chapront, as given by J. Meeus, Astronomical Algorithms, ch. 47); the program
computes the Moon with its own series and keeps these only as reference.

Choices:
- Mean longitudes advance at the rate of the table plus the general
  precession in longitude, 5028.796195"/century (IAU 2006), so they are
  referred to the mean equinox of date, as the sidereal time and the
  precessed stars are.
- The Earth's mean daily motion is exactly 2 pi / 365.2422 rad/day, the
  period of the sidereal-time cycle, so that the cycle has no jump.
- The program's time origin is the Julian day plus 31739.5 days: the mean
  longitude stored is the one at that origin, L(J2000) - n * (2451545.0 +
  31739.5), reduced to [0, 2 pi).
- Perihelion, node, eccentricity, semi-major axis and inclination are the
  J2000.0 values (the model holds them fixed).
"""

import csv
import math
import os
import struct

LARGO_REGISTRO = 107
ORIGEN = 31739.5
J2000 = 2451545.0
PRECESION_GRADOS_SIGLO = 5028.796195 / 3600.0
CICLO_SIDEREO = 365.2422

# Index order of the table and the body names of the source file.
CUERPOS = [
    ("Mer", "Mercury"),
    ("Ven", "Venus"),
    ("Tie", "EM Bary"),
    ("Mar", "Mars"),
    ("Júp", "Jupiter"),
    ("Sat", "Saturn"),
    ("Ura", "Uranus"),
    ("Nep", "Neptune"),
    ("Plu", "Pluto"),
]

# The Moon at J2000.0 (degrees; rates in degrees per Julian century).
LUNA = dict(L=218.3164477, L_rate=481267.88123421, peri=83.3532465,
            node=125.0445479, e=0.0549, a=0.00256955529, i=5.1453964)


def _rad(grados):
    return math.radians(grados)


def _reduce(angulo):
    return angulo % (2.0 * math.pi)


def _lee_elementos(fuentes):
    ruta = os.path.join(fuentes, "planetas", "elementos_keplerianos_jpl.csv")
    with open(ruta, encoding="utf-8") as f:
        filas = [linea for linea in f if not linea.startswith("#")]
    elementos = {}
    for fila in csv.DictReader(filas):
        if fila["table"].startswith("2a"):
            elementos[fila["body"]] = fila
    return elementos


def _registro(codigo, n, l0, peri, e, a, i, nodo):
    cod = codigo.encode("cp1252").ljust(3, b" ")[:3]
    numeros = struct.pack("<7d", n, l0, peri, e, a, i, nodo)
    resultados = struct.pack("<3d6f", *([0.0] * 9))
    registro = cod + numeros + resultados
    assert len(registro) == LARGO_REGISTRO
    return registro


def _desde_origen(longitud_j2000_rad, n):
    return _reduce(longitud_j2000_rad - n * (J2000 + ORIGEN))


def registros(fuentes):
    """The twelve records of the file, in order."""
    tabla = _lee_elementos(fuentes)
    salida = [_registro("", 0, 0, 0, 0, 0, 0, 0)]
    for codigo, nombre in CUERPOS:
        f = tabla[nombre]
        if nombre == "EM Bary":
            n = 2.0 * math.pi / CICLO_SIDEREO
        else:
            n = _rad((float(f["L_rate"]) + PRECESION_GRADOS_SIGLO) / 36525.0)
        l0 = _desde_origen(_rad(float(f["L_deg"])), n)
        i = 0.0 if nombre == "EM Bary" else _rad(float(f["i_deg"]))
        nodo = 0.0 if nombre == "EM Bary" else _reduce(_rad(float(f["long_node_deg"])))
        salida.append(_registro(codigo, n, l0, _reduce(_rad(float(f["long_peri_deg"]))),
                                float(f["e"]), float(f["a_au"]), i, nodo))
    salida.append(_registro("Sol", 0, 0, 0, 0, 0, 0, 0))
    n_luna = _rad((LUNA["L_rate"] + 0.0) / 36525.0)
    salida.append(_registro("Lun", n_luna, _desde_origen(_rad(LUNA["L"]), n_luna),
                            _rad(LUNA["peri"]), LUNA["e"], LUNA["a"], _rad(LUNA["i"]),
                            _rad(LUNA["node"])))
    return salida


def escribe_vdrdatf(fuentes, salida):
    """Writes VDRDATF.DAT into the folder `salida`."""
    datos = b"".join(registros(fuentes))
    with open(os.path.join(salida, "VDRDATF.DAT"), "wb") as f:
        f.write(datos)


if __name__ == "__main__":
    import sys
    escribe_vdrdatf(sys.argv[1], sys.argv[2] if len(sys.argv) > 2 else "Datos")
