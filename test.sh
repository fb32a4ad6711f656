#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. Arguments go
# to ctest: "./test.sh -R purity" runs the tests with purity in their name.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/common.sh

scripts/setup.sh test
# Every time: a folder that run.sh configured may lack what the tests need.
configure release
build build
ensure_runtime_dir

run_tests build "$@"
