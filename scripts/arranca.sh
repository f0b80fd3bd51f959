#!/usr/bin/env bash
# Installs what is missing, builds VEDRANO and starts it.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
bash "$raiz/scripts/prepara.sh"
bash "$raiz/scripts/compila.sh"
if [ -x "$raiz/build/vedrano" ]; then
  exec "$raiz/build/vedrano" "$@"
fi
# Without the window program (Qt widgets missing), the command-line tool.
if [ $# -eq 0 ]; then
  "$raiz/build/vedrano-cli" --help
  echo
  echo "Ejemplo: la fecha juliana del 1 de enero de 2000 a las 12:00 y el Sol ese día"
  printf 'FechaAJuliana " 1 1 200012 0"\nHallaSolAparente 2451545\nTextoHoras 4.9093\n' |
    "$raiz/build/vedrano-cli" calcula
else
  exec "$raiz/build/vedrano-cli" "$@"
fi
