#!/usr/bin/env bash
# Runs the checks of the test window's place under X11 window managers, and writes a table with a
# row for each check to build/managers.md. Fails if a check does, or if a manager is missing.
# With --random it does N random operations under each of them instead, from TARN_RANDOM_SEED on.
#
# Usage: scripts/managers.sh [--random N] [MANAGER...]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

test=tst_e2e_managers
if [ "${1:-}" = --random ]; then
  test=tst_e2e_random
  export TARN_RANDOM_OPERATIONS=$2
  export QTEST_FUNCTION_TIMEOUT=$(($2 * 30000)) # milliseconds
  shift 2
fi
managers=("$@")
if [ ${#managers[@]} -eq 0 ]; then
  managers=(kwin_x11 mutter xfwm4 metacity openbox icewm i3 awesome fluxbox)
  scripts/setup.sh managers
fi
configure release >/dev/null
build build --target "$test"
ensure_runtime_dir

logs=build/managers
mkdir -p "$logs"
failed=0
for manager in "${managers[@]}"; do
  echo "managers: $manager" >&2
  LC_ALL=C.UTF-8 TARN_WINDOW_MANAGER=$manager "build/tests/$test" \
    -o "$logs/$manager.txt,txt" || failed=1
done
if [ "$test" = tst_e2e_random ]; then
  for manager in "${managers[@]}"; do
    printf '%s: %s\n' "$manager" "$(grep -o 'Seed .*' "$logs/$manager.txt")"
  done
  exit "$failed"
fi

# result FILE CHECK
result() { if grep -q "^PASS *: .*::$2()" "$1"; then echo yes; else echo '**no**'; fi; }

{
  printf '| |'
  printf ' %s |' "${managers[@]}"
  printf '\n|---|'
  printf '%.0s---|' "${managers[@]}"
  echo
  build/tests/tst_e2e_managers -functions | tr -d '()' | while read -r check; do
    printf '| %s |' "$(sed 's/Programs/Program'"'"'s/; s/_/: /; s/\([A-Z]\)/ \L\1/g' <<<"$check")"
    for manager in "${managers[@]}"; do
      printf ' %s |' "$(result "$logs/$manager.txt" "$check")"
    done
    echo
  done
} | tee build/managers.md
exit "$failed"
