#!/usr/bin/env bash
# Installs what is missing, builds the tool where needed and runs it. Arguments
# go to the tool: "./run.sh en" starts it in English. On a machine without a
# display it runs on a virtual one.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/common.sh

scripts/setup.sh run
if [ ! -f build/build.ninja ]; then
  configure release
fi
build build --target TarnTestTool TarnTestPattern tarn_translations
ensure_runtime_dir

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || [ "$(uname)" = Darwin ]; then
  exec build/bin/TarnTestTool "$@"
fi

# A shell that starts us with "&" makes us deaf to SIGINT; hear it again.
hearing=()
if env --default-signal=INT true 2>/dev/null; then
  hearing=(env --default-signal=INT)
fi
exec ${hearing[@]+"${hearing[@]}"} scripts/run-virtual.sh build/bin/TarnTestTool "$@"
