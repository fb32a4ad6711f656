# shellcheck shell=bash
# What run.sh, test.sh and the checks share. Sourced with the root of the
# checkout as the current folder.

# configure PRESET: configures build/ (release) or build-PRESET/.
configure() {
  if ! command -v cmake >/dev/null; then
    echo "CMake is missing; CMake, Ninja, a C++17 compiler and Qt 5 are needed." >&2
    return 1
  fi
  if cmake --list-presets >/dev/null 2>&1; then
    cmake --preset "$1"
  elif [ "$1" = release ]; then
    # CMake before 3.21 cannot read our presets.
    cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release
  else
    echo "The preset $1 needs CMake 3.21 or newer." >&2
    return 1
  fi
}

# build FOLDER [OPTION...]: builds what is out of date, silent if nothing is.
build() {
  if ! cmake --build "$@" -- -n 2>&1 | grep -q '^ninja: no work to do'; then
    cmake --build "$@"
  fi
}

# set_sanitizers: how they judge what is built with the preset asan.
set_sanitizers() {
  export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:print_suppressions=0"
}

# run_tests FOLDER [OPTION...]: three at a time, since the end-to-end tests wait most of the time.
run_tests() {
  (cd "$1" && ctest --output-on-failure --no-tests=error -j3 "${@:2}")
}

# Qt wants a runtime folder that nobody else can read.
ensure_runtime_dir() {
  if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    export XDG_RUNTIME_DIR="$PWD/build/runtime"
    install -d -m 700 "$XDG_RUNTIME_DIR"
  fi
}
