#!/usr/bin/env bash
# Installs what is missing to run the tool, to test it, to check it as CI does
# or to take pictures of it; says and does nothing if all of it is there.
#
# Usage: scripts/setup.sh run|test|ci|managers|pictures|package
set -euo pipefail

build_packages=(build-essential cmake ninja-build pkg-config
  qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
  libqt5x11extras5-dev libxcb1-dev libxcb-randr0-dev libxcb-screensaver0-dev libwayland-dev)
font_packages=(fonts-noto-cjk fonts-dejavu-core fonts-liberation)
virtual_desktop_packages=(xvfb openbox imagemagick x11-utils)
test_packages=(dbus-daemon libx11-dev libxtst-dev libxext-dev libxfixes-dev libxdamage-dev libxrandr-dev libxss-dev libsm-dev libice-dev libbenchmark-dev
  xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils qtwayland5)
manager_packages=(kwin-x11 kwin-wayland mutter xwayland xfwm4)
all_manager_packages=("${manager_packages[@]}" metacity icewm i3-wm awesome fluxbox)
picture_packages=("${virtual_desktop_packages[@]}" xdotool)
package_packages=("${virtual_desktop_packages[@]}" librsvg2-bin dpkg-dev xz-utils lintian desktop-file-utils appstream man-db mmdebstrap xdotool)
check_packages=(git clang-format clang-tidy clazy man-db shellcheck xdotool)

purpose=${1:-run}
packages=("${build_packages[@]}" "${font_packages[@]}")
case $purpose in
  run)
    if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
      packages+=("${virtual_desktop_packages[@]}")
    elif [ -z "${DISPLAY:-}" ]; then
      packages+=(qtwayland5)
    fi
    ;;
  test | ci)
    packages+=("${virtual_desktop_packages[@]}" "${test_packages[@]}" "${manager_packages[@]}")
    if [ "$purpose" = ci ]; then
      packages+=("${check_packages[@]}")
    fi
    ;;
  managers)
    packages+=("${virtual_desktop_packages[@]}" "${test_packages[@]}" "${all_manager_packages[@]}")
    ;;
  pictures)
    packages+=("${picture_packages[@]}")
    ;;
  package)
    packages+=("${package_packages[@]}")
    ;;
  *)
    echo "Usage: scripts/setup.sh run|test|ci|managers|pictures|package" >&2
    exit 2
    ;;
esac

# Without apt-get: say what is needed, once per build folder, and leave it to
# the build to find it.
if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
  cd "$(dirname "$0")/.."
  if [ ! -f build/build.ninja ]; then
    echo "setup: there is no apt-get here; please install, if missing: a C++17 compiler," \
      "CMake 3.16 or newer, Ninja, Qt 5.9 or newer of the 5 series (Widgets, Test," \
      "LinguistTools and, for X11, DBus and X11Extras; on macOS Homebrew's qt@5, its prefix in CMAKE_PREFIX_PATH)," \
      "on Linux libxcb with its randr and screensaver extensions and libwayland," \
      "a Chinese font; for the end-to-end tests also Xvfb, Xwayland, dbus-daemon, openbox, kwin_x11, kwin_wayland, mutter, xfwm4, xrandr, xhost, setxkbmap, xprop, ImageMagick" \
      "and the development files of libX11, libXtst, libXext, libXfixes, libXdamage, libXrandr, libXss, libSM and libICE." >&2
  fi
  exit 0
fi

installed=$'\n'$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null || true)$'\n'
missing=()
for package in "${packages[@]}"; do
  if [[ $installed != *$'\n'"installed $package"$'\n'* ]]; then
    missing+=("$package")
  fi
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "setup: neither root nor sudo; please have installed: ${missing[*]}" >&2
    exit 0
  fi
  apt=(sudo "${apt[@]}")
fi

echo "setup: installing ${missing[*]}" >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! "${apt[@]}" update >"$log" 2>&1; then
  cat "$log" >&2 # The lists that are there may still do.
fi
if ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
