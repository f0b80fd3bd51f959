#!/usr/bin/env bash
# Installs what is missing, builds VEDRANO and runs every test.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
bash "$raiz/scripts/prepara.sh"
bash "$raiz/scripts/compila.sh"
cd "$raiz/build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
