#!/usr/bin/env bash
# Configures and builds VEDRANO in build/ (Release).
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
cmake -S "$raiz" -B "$raiz/build" -DCMAKE_BUILD_TYPE=Release
cmake --build "$raiz/build" -j"$(nproc)"
