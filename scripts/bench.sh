#!/usr/bin/env bash
# Measures what painting each pattern costs against the copy of a picture of the
# window's size, and writes the table to build/bench.md. Arguments go to
# tarn_bench: "scripts/bench.sh --benchmark_filter=grid" measures the grid only.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

configure release >/dev/null
# All of the list is read, or the build tool would complain of a broken pipe.
if ! cmake --build build --target help | grep '^tarn_bench:' >/dev/null; then
  echo "bench: Google Benchmark is missing (Debian: libbenchmark-dev)." >&2
  exit 1
fi
build build --target tarn_bench tarn_filetime
if cmake --build build --target help | grep '^tarn_tickrate:' >/dev/null; then
  build build --target tarn_tickrate
fi
ensure_runtime_dir

csv=build/bench.csv
QT_QPA_PLATFORM=offscreen build/bin/tarn_bench \
  --benchmark_out="$csv" --benchmark_out_format=csv "$@"

# machine: the processor's name where the system tells it.
machine() {
  local name
  name=$(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo 2>/dev/null | head -n 1)
  if [ -z "$name" ]; then
    name=$(sysctl -n machdep.cpu.brand_string 2>/dev/null || uname -m)
  fi
  echo "$name, $(getconf _NPROCESSORS_ONLN) cores, $(uname -s) $(uname -m)"
}

# Names hold commas, so they are cut off at their quotes; the counters are the last columns.
{
  echo "Machine: $(machine)"
  echo
  echo '| Pattern | Window | Painting, ms | Longest part, ms | Copy, ms | Painting / copy |'
  echo '|---|---|---:|---:|---:|---:|'
  sed -n 's|^"\(.*\), \([0-9]*x[0-9]*\)/[^"]*",\(.*\)|\1;\2;\3|p' "$csv" | awk -F';' '{
    n = split($3, column, ",")
    printf "| %s | %s | %.2f | %.2f | %.2f | %.2f |\n", $1, $2, column[n - 2], column[n - 1],
      column[n - 3], column[n]
  }'
} >build/bench.md
{ echo; QT_QPA_PLATFORM=offscreen build/bin/tarn_filetime; } | tee -a build/bench.md
if [ -x build/bin/tarn_tickrate ]; then
  { echo; build/bin/tarn_tickrate; } | tee -a build/bench.md
fi
echo "bench: the table is build/bench.md"
