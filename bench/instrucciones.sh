#!/bin/sh
# Instructions of one warm rendering pass, as counted by callgrind: the
# benchmark runs one untimed pass (ActualizaCielo) and then the timed ones;
# everything inside DibujaCielo is collected and the warm-up pass is taken
# off. Usage: bench/instrucciones.sh BUILD_DIR FILTER
# e.g. bench/instrucciones.sh build 'BM_PasadaCompleta/1920/1080$'
set -e
dir=${1:-build}
filtro=${2:-BM_PasadaCompleta}
sal=$(mktemp -d)
valgrind --tool=callgrind --callgrind-out-file="$sal/cg" --toggle-collect='vedrano::DibujaCielo(*' \
  "$dir/bench/vedrano-bench" --benchmark_filter="$filtro" --benchmark_min_time=0.000001 \
  --benchmark_repetitions=1 >"$sal/log" 2>&1
total=$(callgrind_annotate "$sal/cg" | awk '/PROGRAM TOTALS/ {gsub(",", "", $1); print $1}')
previa=$(callgrind_annotate --inclusive=yes "$sal/cg" | awk '/vedrano::ActualizaCielo\(/ {gsub(",", "", $1); print $1; exit}')
pasadas=$(awk '/^BM_/ {print $6}' "$sal/log" | tail -1)
echo "$filtro: $(( (total - ${previa:-0}) / pasadas )) instrucciones por pasada ($pasadas pasadas medidas)"
rm -rf "$sal"
