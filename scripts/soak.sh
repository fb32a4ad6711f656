#!/usr/bin/env bash
# What has to go well for days, in a short time: runs the programs below with many more rounds than
# the tests do, two of them at a time, and writes a table of what they did to build/soak/table.md.
# Fails if anything does. The same seed and minutes give the same runs.
#
# Usage: scripts/soak.sh [--minutes N] [--seed S] [ROW...]
#   --minutes N   about N minutes instead of all, at least one round of each row
#   --seed S      another seed than 1
#   ROW           these rows alone, by the name of their program
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

all_minutes=60 # of a run of everything, on two cores
minutes=$all_minutes
export TARN_SOAK_SEED=1
while [[ ${1:-} == --* ]]; do
  case $1 in
    --minutes) minutes=$2 ;;
    --seed) TARN_SOAK_SEED=$2 ;;
    *)
      sed -n 's/^# \?//; 2,10p' "$0" >&2
      exit 2
      ;;
  esac
  shift 2
done
chosen=" $* "

# rows: build, rounds of a full run, program, its arguments, what is done. The longest first.
rows='
release | 100000 | tst_hostilesettings_random | starts on damaged settings
release | 1440 | tst_simulateddays gridRun_keepsPaceAndPictureAndMemory:scrolling | minutes of scrolling at speed 100, simulated
release | 100000 | tst_e2e_operator | inputs of an operator without sense
asan | 100000 | tst_e2e_operator | inputs of an operator without sense
asan | 100 | tst_e2e_kill | kills at any moment
asan | 1000 | tst_e2e_screenchanges | changes of the screens
asan | 5000 | tst_hostilesettings_random | starts on damaged settings
release | 1440 | tst_simulateddays purityRun_keepsPaceAndPictureAndMemory:fastest | minutes of rising grey at speed 100, simulated
asan | 60 | tst_simulateddays | minutes of each of these runs, simulated
release | 1440 | tst_simulateddays gridRun_keepsPaceAndPictureAndMemory:aging | minutes of aging at speed 100, simulated
release | 1440 | tst_simulateddays gridRun_keepsPaceAndPictureAndMemory:merged | minutes of the merged cycle at speed 100, simulated
asan | 10000 | tst_pictureloader_random | damaged pictures
asan | 100 | tst_e2e_disk anyFaults_loseNothing | faults of the disk
'

configure release >/dev/null
configure asan >/dev/null
mapfile -t targets < <(awk -F' *[|] *' 'NF { split($3, words, " "); print words[1] }' <<<"$rows" | sort -u)
build build --target "${targets[@]}"
build build-asan --target "${targets[@]}"
ensure_runtime_dir
folder=$PWD/build/soak
rm -rf "$folder"
mkdir -p "$folder"
export LC_ALL=C.UTF-8 QTEST_FUNCTION_TIMEOUT=2147483647
echo "soak: $minutes of $all_minutes minutes, seed $TARN_SOAK_SEED" >&2

# megabytes KIB
megabytes() { awk -v kib="$1" 'BEGIN { printf "%.1f", kib / 1024 }'; }

# run_row NUMBER BUILD COUNT WHAT PROGRAM [ARGUMENT...]: writes its line of the table to NUMBER.md.
# In a shell of its own.
run_row() {
  local number=$1 build=$2 count=$3 what=$4 program=$5
  shift 5
  local log=$folder/$number-$program.txt start=$SECONDS failures=0 figures
  local path=build/tests/$program
  export TARN_SOAK_COUNT=$count
  if [ "$build" = asan ]; then
    path=build-asan/tests/$program
    export TARN_TEST_TIMEOUT_SCALE=4
    set_sanitizers
  fi
  if [ -d "$path" ]; then
    # Another row may have the same program, whose settings file lies beside it.
    cp -r "$path" "$folder/$number"
    path=$folder/$number/$program
    export QT_QPA_PLATFORM=offscreen
  fi
  "$path" "$@" >"$log" 2>&1 || {
    failures=$(grep -c '^FAIL!' "$log") || failures=1 # none: it has crashed
    touch "$folder/failed"
  }
  read -ra figures <<<"$(sed -n 's/.*Long run: \([0-9]*\) done, resident \([0-9]*\) KiB first, \([0-9]*\) KiB last.*/\1 \2 \3/p' "$log" | tail -n 1)"
  [ ${#figures[@]} = 3 ] || figures=(0 0 0)
  printf '| %s | %s | %d | %d | %s | %s | %d |\n' "$what" "$build" "${figures[0]}" "$failures" \
    "$(megabytes "${figures[1]}")" "$(megabytes "${figures[2]}")" $((SECONDS - start)) \
    | tee "$folder/$number.md" >&2
  [ "$failures" = 0 ] || tail -n 60 "$log" >&2
}

number=10 # so that the names sort
while IFS='|' read -r build rounds program what; do
  [ -n "$build" ] || continue
  number=$((number + 1))
  read -ra program <<<"$program"
  [ "$chosen" = '  ' ] || [[ $chosen == *" ${program[0]} "* ]] || continue
  rounds=$((rounds * minutes / all_minutes))
  [ "$(jobs -rp | wc -l)" -lt 2 ] || wait -n
  run_row "$number" "${build% }" $((rounds > 0 ? rounds : 1)) "${what# }" "${program[@]}" &
done <<<"$rows"
wait

{
  echo '| What | Build | Done | Failures | MB first | MB last | Seconds |'
  echo '|---|---|---:|---:|---:|---:|---:|'
  cat "$folder"/[0-9]*.md
} >"$folder/table.md"
cat "$folder/table.md"
[ ! -e "$folder/failed" ]
