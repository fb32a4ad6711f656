#!/usr/bin/env bash
# Takes one statement at a time (a connect, an emit, a call, an assignment) out of the sources
# FILE..., runs the unit tests that reach it, and writes a table of what noticed. Ends with 1 if
# there are survivors: statements that no test misses.
#
# Usage: scripts/mutants.sh FILE.cpp...
# Works on a copy of the checkout in build-mutants/, built once: each statement runs unless the
# environment variable MUTANT has its number.
set -euo pipefail

# run PROGRAM SECONDS: runs a test program of this copy up to its first failure; its output goes to
# PROGRAM.log.
run() {
  (cd "tests/$1" && timeout -k 5 "$2" "./$1" 2>&1 | sed '/^FAIL!/q') >"$1.log" 2>/dev/null
}

# noticed: what fails without the statement $MUTANT, the likeliest and fastest programs first.
noticed() {
  local seconds program failure
  while read -r seconds program; do
    if ! grep -qsx "$MUTANT" "../$program.reached" || run "$program" $((10 + 5 * seconds)); then
      continue
    fi
    failure=$(sed -n 's/^\(FAIL!\|QFATAL\) *: [^:]*::\([^ ]*\).*/\2/p' "$program.log" | head -n 1)
    echo "$program ${failure:-ended early or too late}"
    return
  done <../plan
  echo SURVIVED
}

# distance PROGRAM FILE...: 0 if the program is named after one of the files, 1 if it tests their
# folder, otherwise 2.
distance() {
  local program=$1 file stem nearest=2
  shift
  for file in "$@"; do
    stem=$(basename "$file" .cpp)
    case $program in "tst_${stem%%_*}"*) nearest=0 ;; esac
    if [ "$nearest" -eq 2 ] && [ -e "../tests/$(dirname "$file")/$program.cpp" ]; then
      nearest=1
    fi
  done
  echo "$nearest"
}

# --one LINE: LINE of the list with what noticed, run in the copy of the test programs numbered MUTANTS_SLOT.
if [ "${1:-}" = --one ]; then
  cd "build-mutants/slot$MUTANTS_SLOT"
  MUTANT=${2%%$'\t'*}
  export MUTANT
  printf '%s\t%s\n' "${2#*$'\t'}" "$(noticed)"
  exit
fi

if [ $# -eq 0 ]; then
  echo 'mutants: no sources given' >&2
  exit 2
fi
cd "$(dirname "$0")/.."
. scripts/common.sh
ensure_runtime_dir
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 QTEST_DISABLE_STACK_DUMP=1

copy=$PWD/build-mutants
mkdir -p "$copy"
cat >"$copy/mutant.h.new" <<'HEADER'
#pragma once
#include <cstdio>
#include <cstdlib>
#include <set>

inline bool mutantKeeps(int number)
{
    static const char *const left_out = std::getenv("MUTANT");
    static const char *const log = std::getenv("MUTANTS_REACHED");
    static const int missing = left_out ? std::atoi(left_out) : 0;
    static std::set<int> reached;
    if (log && reached.insert(number).second) {
        std::FILE *file = std::fopen(log, "a");
        std::fprintf(file, "%d\n", number);
        std::fclose(file);
    }
    return number != missing;
}
HEADER
cmp -s "$copy/mutant.h.new" "$copy/mutant.h" || cp "$copy/mutant.h.new" "$copy/mutant.h"
git ls-files -coz --exclude-standard | scripts/mutants.pl "$copy" "$@" >"$copy/list"
cd "$copy"
configure release >configure.log

# The test programs that link the sources' libraries or start a program that does, each once, whatever
# scales they are run at.
libraries=$(for source in "$@"; do
  sed -n "s|.*-o \([^ ]*\)/CMakeFiles/\([^/]*\)\.dir/[^ ]* -c .*/${source}\".*|\1/lib\2.a|p" build/compile_commands.json
done | sort -u)
programs=()
for program in $(cd build && ctest -N -L unit | sed -n 's/^ *Test *#[0-9]*: \(tst_[a-z_]*[a-z]\).*/\1/p' | uniq); do
  linked=$(ninja -C build -t inputs "tests/$program/$program")
  if grep -qwFf <(echo "$libraries") <<<"$linked"; then
    programs+=("$program")
  fi
done
if [ ${#programs[@]} -eq 0 ]; then
  echo 'mutants: no unit test links these sources' >&2
  exit 2
fi
cmake --build build --target "${programs[@]}"

# Each slot has programs of its own, since their settings files lie beside them.
for slot in slot0 slot1; do
  rm -rf "$slot"
  mkdir -p "$slot/tests"
  for program in "${programs[@]}"; do
    cp -r "build/tests/$program" "$slot/tests"
  done
done

rm -f ./*.reached plan
cd slot0
for program in "${programs[@]}"; do
  SECONDS=0
  if ! MUTANTS_REACHED=$copy/$program.reached run "$program" 600; then
    echo "mutants: $program fails with nothing taken out:" >&2
    cat "$program.log" >&2
    exit 1
  fi
  echo "$(distance "$program" "$@") $SECONDS $program"
done | sort -k 1,1n -k 2,2n | cut -d ' ' -f 2- >../plan
cd ../..

tr '\n' '\0' <"$copy/list" | xargs -0 -n 1 -P 2 --process-slot-var=MUTANTS_SLOT scripts/mutants.sh --one \
  | tee "$copy/table"
survivors=$(grep -c 'SURVIVED$' "$copy/table" || true)
echo "mutants: $(wc -l <"$copy/table") statements, $survivors survivors"
[ "$survivors" -eq 0 ]
