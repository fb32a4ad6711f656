#!/usr/bin/env bash
# Runs the checks of the test window's place under X11 window managers and Wayland compositors, and
# writes a table with a row for each check to build/managers.md. Fails if a check does, or if a
# manager is missing. With --random it does N random operations under each X11 window manager
# instead, from TARN_SOAK_SEED on.
#
# Usage: scripts/managers.sh [--random N] [MANAGER...]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

tests=(tst_e2e_managers tst_e2e_fullscreen)
managers=(kwin_x11 mutter xfwm4 metacity openbox icewm i3 awesome fluxbox)
compositors=(kwin_wayland mutter_wayland)
if [ "${1:-}" = --random ]; then
  tests=(tst_e2e_random)
  compositors=()
  export TARN_SOAK_COUNT=$2
  export QTEST_FUNCTION_TIMEOUT=$(($2 * 30000)) # milliseconds
  shift 2
fi
if [ $# -gt 0 ]; then
  managers=("$@")
else
  managers+=("${compositors[@]}")
  scripts/setup.sh managers
fi
configure release >/dev/null
build build --target "${tests[@]}"
ensure_runtime_dir

logs=build/managers
mkdir -p "$logs"
failed=0
for manager in "${managers[@]}"; do
  echo "managers: $manager" >&2
  for test in "${tests[@]}"; do
    LC_ALL=C.UTF-8 TARN_WINDOW_MANAGER=$manager "build/tests/$test" \
      -o "$logs/$manager-$test.txt,txt" || failed=1
  done
done
if [ "${tests[0]}" = tst_e2e_random ]; then
  for manager in "${managers[@]}"; do
    printf '%s: %s\n' "$manager" "$(grep -o 'Seed .*' "$logs/$manager-tst_e2e_random.txt")"
  done
  exit "$failed"
fi

# result MANAGER CHECK
result() { if grep -q "^PASS *: .*::$2()" "$logs/$1"-*.txt; then echo yes; else echo '**no**'; fi; }

{
  printf '| |'
  printf ' %s |' "${managers[@]}"
  printf '\n|---|'
  printf '%.0s---|' "${managers[@]}"
  echo
  for test in "${tests[@]}"; do "build/tests/$test" -functions; done | tr -d '()' | while read -r check; do
    printf '| %s |' "$(sed 's/Programs/Program'"'"'s/; s/_/: /; s/\([A-Z]\)/ \L\1/g' <<<"$check")"
    for manager in "${managers[@]}"; do
      printf ' %s |' "$(result "$manager" "$check")"
    done
    echo
  done
} | tee build/managers.md
exit "$failed"
