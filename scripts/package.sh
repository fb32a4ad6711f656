#!/usr/bin/env bash
# Makes the packages into build/packages/: for Debian, and the portable folder. Two runs on one
# system write the same bytes.
#
# Usage: scripts/package.sh
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh package
configure release
build build
umask 022
rm -rf build/packages
(cd build && cpack)
rm -rf build/packages/_CPack_Packages
ls -l build/packages
