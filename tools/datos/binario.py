"""Fixed-record writing shared by every catalogue file.

Integer = 16-bit signed, Single = 32-bit IEEE, little-endian, no padding;
texts are single-byte Windows-1252 padded with blanks. Angles are radians and
sky directions unit vectors x = -sin(ra)|cos(dec)|, y = sin(dec),
z = cos(ra)|cos(dec)|.
"""
import csv
import math
import os
import re
import struct
import unicodedata

DOS_PI = 2.0 * math.pi


def entero(valor):
    return struct.pack('<h', valor)


def simple(valor):
    return struct.pack('<f', valor)


def texto(valor, largo):
    """Text field of `largo` bytes; characters outside cp1252 are
    transliterated by dropping their accents; longer texts are an error so
    that no name is cut without a decision."""
    datos = a1252(valor)
    if len(datos) > largo:
        raise ValueError('texto demasiado largo para %d: %r' % (largo, valor))
    return datos + b' ' * (largo - len(datos))


def a1252(valor):
    salida = bytearray()
    for c in valor:
        try:
            salida += c.encode('cp1252')
        except UnicodeEncodeError:
            base = unicodedata.normalize('NFD', c)[0]
            salida += base.encode('cp1252')
    return bytes(salida)


def vector(ar, dec):
    cd = abs(math.cos(dec))
    return simple(-math.sin(ar) * cd) + simple(math.sin(dec)) + simple(math.cos(ar) * cd)


def posicion(ar, dec):
    """RA and Dec Singles followed by the direction vector."""
    return simple(ar) + simple(dec) + vector(ar, dec)


def normaliza_ar(ar):
    ar = math.fmod(ar, DOS_PI)
    return ar + DOS_PI if ar < 0 else ar


def grados(ra_deg, dec_deg):
    return normaliza_ar(math.radians(float(ra_deg))), math.radians(float(dec_deg))


_SEXA = re.compile(r'^\s*([+-]?)(\d+)[:hd\s]+(\d+)[:m\s]+([\d.]+)s?\s*$')


def sexagesimal(texto_angulo):
    """'12:34:56.7', '12h34m56.7s', '+12d34m56s', '12 34 56.7' to a number
    in the unit of the first field (hours or degrees)."""
    m = _SEXA.match(texto_angulo)
    if not m:
        raise ValueError('ángulo ilegible: %r' % texto_angulo)
    signo, a, b, c = m.groups()
    v = int(a) + int(b) / 60.0 + float(c) / 3600.0
    return -v if signo == '-' else v


def horas_grados(ra_texto, dec_texto):
    return (normaliza_ar(math.radians(15.0 * sexagesimal(ra_texto))),
            math.radians(sexagesimal(dec_texto)))


def lee_csv(ruta, separador=','):
    with open(ruta, encoding='utf-8', newline='') as f:
        lineas = [l for l in f if not l.startswith('#')]
    return list(csv.DictReader(lineas, delimiter=separador))


def escribe(salida, nombre, registros, largo):
    """Writes the records, checking each one's length, through a temporary
    file so that a failed run never leaves a half-written catalogue."""
    for r in registros:
        if len(r) != largo:
            raise ValueError('%s: registro de %d bytes, se esperaban %d' % (nombre, len(r), largo))
    ruta = os.path.join(salida, nombre)
    with open(ruta + '.tmp', 'wb') as f:
        f.write(b''.join(registros))
    os.replace(ruta + '.tmp', ruta)
    return len(registros)


def clave_alfabetica(nombre):
    """Sort key that ignores case and accents, as a reader scans a list."""
    sin = ''.join(c for c in unicodedata.normalize('NFD', nombre)
                  if unicodedata.category(c) != 'Mn')
    return (sin.upper(), nombre)


def ultimo_indice(valores, limite):
    """Index of the last of the sorted values that is <= limite (-1 if none)."""
    n = -1
    for i, v in enumerate(valores):
        if v <= limite:
            n = i
    return n
