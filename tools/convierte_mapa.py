#!/usr/bin/env python3
"""Turns the land outlines of a TopoJSON file (Natural Earth data as the
world-atlas package ships it, e.g. land-110m.json) into the coastline
resource of the location dialog's map.

Output, little-endian: the four bytes "VDMP", a uint32 count of lines, then
for each line a uint32 count of points and that many (int16 longitude,
int16 latitude) pairs in hundredths of a degree, longitude east positive.

Usage: convierte_mapa.py land-110m.json resources/mapa/costas.bin
"""
import json
import struct
import sys


def arcos(topo):
    """The arcs of a TopoJSON topology as lists of (lon, lat) in degrees."""
    transformada = topo.get("transform")
    for arco in topo["arcs"]:
        puntos = []
        if transformada:
            (sx, sy), (tx, ty) = transformada["scale"], transformada["translate"]
            x = y = 0
            for dx, dy, *_ in arco:  # quantized arcs are delta-encoded
                x += dx
                y += dy
                puntos.append((x * sx + tx, y * sy + ty))
        else:
            puntos = [(p[0], p[1]) for p in arco]
        yield puntos


def centesimas(v, limite):
    return max(-limite, min(limite, round(v * 100)))


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with open(sys.argv[1], encoding="utf-8") as f:
        topo = json.load(f)
    lineas = []
    for puntos in arcos(topo):
        linea = []
        for lon, lat in puntos:
            p = (centesimas(lon, 18000), centesimas(lat, 9000))
            if not linea or linea[-1] != p:
                linea.append(p)
        if len(linea) >= 2:
            lineas.append(linea)
    datos = bytearray(b"VDMP")
    datos += struct.pack("<I", len(lineas))
    for linea in lineas:
        datos += struct.pack("<I", len(linea))
        for lon, lat in linea:
            datos += struct.pack("<hh", lon, lat)
    with open(sys.argv[2], "wb") as f:
        f.write(datos)
    print(f"{len(lineas)} lineas, {sum(len(l) for l in lineas)} puntos, {len(datos)} bytes")


if __name__ == "__main__":
    main()
