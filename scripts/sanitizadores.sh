#!/usr/bin/env bash
# Builds VEDRANO with clang, AddressSanitizer and UndefinedBehaviorSanitizer
# in build-san/, runs every test there, then each fuzz target on a copy of
# its corpus for a bounded time. Any finding (crash, leak, undefined
# behaviour, hang of more than a second per input) fails the run.
#   SEGUNDOS_FUZZ=60 bash scripts/sanitizadores.sh
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
segundos="${SEGUNDOS_FUZZ:-60}"

bash "$raiz/scripts/prepara.sh" clang libclang-rt-14-dev

compila="$raiz/build-san"
CC=clang CXX=clang++ cmake -S "$raiz" -B "$compila" -DCMAKE_BUILD_TYPE=Release -DVEDRANO_FUZZ=ON \
  -DVEDRANO_BENCH=OFF -DCMAKE_CXX_FLAGS="-gline-tables-only"
cmake --build "$compila" -j"$(nproc)"

# Fontconfig keeps its caches until the process ends: not ours to free.
export LSAN_OPTIONS="suppressions=$raiz/fuzz/lsan.supp:print_suppressions=0"
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export QT_QPA_PLATFORM=offscreen
# A test that measures time may miss under load; a finding fails every try.
(cd "$compila" && ctest --output-on-failure -j"$(nproc)" --repeat until-pass:2)

trabajo="$(mktemp -d)"
trap 'rm -rf "$trabajo"' EXIT
for objetivo in configuracion textos catalogo calculadora argumentos; do
  cp -r "$raiz/fuzz/corpus/$objetivo" "$trabajo/$objetivo"
  echo "== fuzz_$objetivo durante $segundos s"
  estado=0
  "$compila/fuzz/fuzz_$objetivo" -max_total_time="$segundos" -timeout=1 -rss_limit_mb=2048 \
    -print_final_stats=1 -artifact_prefix="$trabajo/" "$trabajo/$objetivo" > "$trabajo/$objetivo.log" 2>&1 ||
    estado=$?
  grep -E '^stat::number_of_executed_units' "$trabajo/$objetivo.log" || true
  if [ "$estado" -ne 0 ]; then
    tail -n 60 "$trabajo/$objetivo.log"
    echo "fuzz_$objetivo: hallazgo (estado $estado)"
    exit 1
  fi
done
