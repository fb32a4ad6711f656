#!/usr/bin/env bash
# Runs clang-tidy (.clang-tidy says which checks) and clazy's checks for Qt
# code, up to level 1, and man on the manual page; every warning is an error.
#
# Usage: scripts/lint.sh [--all | FILE.cpp...]
# Without files: all sources but those of the tests, which would take longer than
# all the rest; with --all, these too. Those of a library are joined in build/lint/,
# since most of the time goes into the headers; clang-tidy then names lines in there.
set -euo pipefail

# lint_one FILE: silent if both linters are.
lint_one() {
  local output status=0
  # In joined sources a local name may be one at the top of another; the compiler sees each alone.
  output=$(clang-tidy -p build/lint --quiet --extra-arg=-Wno-shadow "$1" 2>&1) || report
  # clazy ends with 0 on warnings.
  output=$(clazy-standalone -p build/lint --checks=level1 --ignore-dirs='^/usr/|_autogen/' --extra-arg=-Wno-shadow \
    "$1" 2>&1) || report
  if grep -q ' warning: ' <<<"$output"; then
    report
  fi
  return "$status"
}

report() {
  printf '%s\n' "$output"
  status=1
}

if [ "${1:-}" = --one ]; then
  lint_one "$2"
  exit
fi

root=$(cd "$(dirname "$0")/.." && pwd)
left_out=("$root/build" "$root/tests")
if [ "${1:-}" = --all ]; then
  left_out=("$root/build")
  shift
fi

files=()
for file in "$@"; do
  files+=("$(realpath "$file")")
done
cd "$root"
. scripts/common.sh

# The linters need the compile commands and the generated headers.
if [ ! -f build/compile_commands.json ]; then
  configure release
fi
build build
# Without the compiler's own precompiled headers, which clang cannot read.
mkdir -p build/lint
rm -f build/lint/joined*
commands=$(sed 's# -Winvalid-pch##; s# -include [^ ]*/cmake_pch.hxx##' build/compile_commands.json)
if [ ${#files[@]} -eq 0 ]; then
  mapfile -t files < <(scripts/joined.pl "$root/build/lint" "${left_out[@]}" <<<"$commands")
else
  cat <<<"$commands" >build/lint/compile_commands.json
fi
if [ ${#files[@]} -eq 0 ]; then
  echo 'lint: no sources to check' >&2
  exit 1
fi

manual=$(man --warnings --local-file --encoding=UTF-8 --troff-device=utf8 --ditroff docs/TarnTestPattern.1 2>&1 >/dev/null)
if [ -n "$manual" ]; then
  printf '%s\n' "$manual"
  exit 1
fi

printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P 2 scripts/lint.sh --one
echo "lint: ${#files[@]} files checked"
