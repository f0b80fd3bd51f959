#!/usr/bin/env bash
# Draws the program's icon at the hicolor theme's sizes from paquete/vedrano.svg:
# paquete/iconos/NxN.png, installed in the hicolor theme and built into the
# program as its window icon. Needs rsvg-convert (librsvg2-bin); the PNGs are
# kept in the tree.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
mkdir -p "$raiz/paquete/iconos"
for n in 16 24 32 48 64 128 256; do
  rsvg-convert -w "$n" -h "$n" "$raiz/paquete/vedrano.svg" -o "$raiz/paquete/iconos/${n}x${n}.png"
done
