#!/usr/bin/env bash
# Checks the layout of the C++ sources with clang-format and the shell scripts
# with shellcheck.
#
# Usage: scripts/check-format.sh [--fix]
#   --fix  formats the C++ sources instead of checking them
set -euo pipefail
cd "$(dirname "$0")/.."

# list PATTERN...: the files that git knows or would add, NUL-terminated.
list() {
  git ls-files -z --cached --others --exclude-standard --deduplicate -- "$@"
}

case ${1:-} in
  --fix) clang_format=(clang-format -i) ;;
  '') clang_format=(clang-format --dry-run -Werror) ;;
  *)
    echo "Usage: scripts/check-format.sh [--fix]" >&2
    exit 2
    ;;
esac

status=0
list '*.cpp' '*.h' | xargs -0 "${clang_format[@]}" || status=1
list '*.sh' '.ci/run' | xargs -0 shellcheck -x || status=1
exit "$status"
