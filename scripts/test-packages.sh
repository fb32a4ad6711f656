#!/usr/bin/env bash
# Checks the packages in build/packages/ as people install them: in a minimal Debian of its own,
# without a compiler and without Qt, by ordinary users on a virtual display. The same packages
# come out a second time.
#
# Usage: scripts/test-packages.sh
# With --in ROOT it does the tests in the system that it has made before.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=$PWD/build/packages
if [ "${1:-}" != --in ]; then
  scripts/setup.sh package
  lintian --fail-on error --allow-root "$packages"/*.deb
  content=$(mktemp -d)
  trap 'rm -rf "$content"' EXIT
  dpkg-deb -x "$packages"/*.deb "$content"
  desktop-file-validate "$content"/usr/share/applications/*
  appstreamcli validate --no-net "$content"/usr/share/metainfo/*
  MANROFFSEQ='' man --warnings -E UTF-8 -l -Tutf8 -Z "$content"/usr/share/man/man1/* 2>&1 >/dev/null | tee "$content/warnings"
  [ ! -s "$content/warnings" ]
  (cd build && cpack -G DEB -B "$content/again" >/dev/null)
  cmp "$packages"/*.deb "$content"/again/*.deb
  mmdebstrap --quiet --variant=minbase --format=null \
    --customize-hook="'$PWD/scripts/test-packages.sh' --in \"\$1\"" bookworm -
  exit
fi
root=$2
. scripts/virtual-tool.sh
log=$scratch/log

start_desktop 800x600
mkdir -p "$root/tmp/.X11-unix" "$root/tmp/packages"
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
trap 'umount "$root/tmp/.X11-unix"; end_all' EXIT
cp "$packages"/* "$root/tmp/packages"
in_root() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"; }
for user in ann ben; do
  in_root useradd --create-home "$user"
done

# start USER COMMAND...: starts the tool and waits for its windows.
start() {
  local user=$1
  shift
  chroot --userspec="$user" "$root" \
    env -i HOME="/home/$user" DISPLAY="$DISPLAY" PATH=/usr/bin:/bin LANG="${language:-C.UTF-8}" "$@" >>"$log" 2>&1 &
  tool=$!
  control=$(timeout 60 xdotool search --sync --onlyvisible --name 'Tarn$') || fail "$* shows no window"
  xdotool windowfocus --sync "$control"
}

is_called() { xdotool getwindowname "$control" | grep -q "$1"; }
# is_red X: whether the pattern, and not what is behind it, is at this column of the first row.
is_red() { import -window root -crop "1x1+$1+0" txt:- | grep -q ' red$'; }
is_other() { ! is_red "$1"; }
stored_x() { sed -n 's/^testWindowPointX=//p' "$root/home/$1/config.ini"; }
is_stored() { [ "$(stored_x "$1")" = "$2" ]; }

# keeps_settings FOLDER USER COMMAND...: shows the pattern at the left edge, moves it by two pixels,
# and shows it there at the next start. FOLDER is where the settings are, in the user's home.
keeps_settings() {
  local folder=$1
  shift
  start "$@"
  wait_for 'pattern' is_red 0
  xdotool key --clearmodifiers ctrl+Right ctrl+Right
  wait_for 'stored place' is_stored "$1/$folder" 2
  end_tool
  start "$@"
  wait_for 'pattern at its stored place' is_red 2
  is_other 1 || fail 'the pattern is not where it was'
  end_tool
}

# writes_pattern USER COMMAND: a picture file, without a display.
writes_pattern() {
  local file=/home/$1/green.png
  chroot --userspec="$1" "$root" env -i PATH=/usr/bin:/bin "$2" purity --colour green --size 16x9 -o "$file"
  [ "$(identify -format '%wx%h %[hex:u.p{15,8}]' "$root$file")" = '16x9 00FF00' ] || fail "$2 writes another picture"
}

echo 'The portable folder, without Qt'
in_root sh -c '! ls /usr/lib/*/libQt5* /usr/bin/cc' >/dev/null 2>&1 || fail 'this system has Qt or a compiler'
in_root sh -c 'apt-get install -qq xz-utils >/dev/null 2>&1; tar -C /home/ben -xf /tmp/packages/*portable.tar.xz && mv /home/ben/TarnTestTool-* /home/ben/portable && chown -R ben: /home/ben/portable'
keeps_settings portable ben /home/ben/portable/tarntesttool english
writes_pattern ben /home/ben/portable/tarntestpattern

echo 'The Debian package'
in_root sh -c 'apt-get install -qq --no-install-recommends /tmp/packages/*.deb' >>"$log" 2>&1 || fail 'the package is not installed'
own=.local/share/TarnTestTool
keeps_settings $own ann tarntesttool
writes_pattern ann TarnTestPattern

echo 'Languages, from the menu and from the desktop'
entry=$root/usr/share/applications/tarntesttool.desktop
command_of() { sed -n "/^\[$1\]/,/^\[/s/^Exec=//p" "$entry"; }
while read -r locale action title; do
  # shellcheck disable=SC2046  # A command and its argument.
  language=$locale start ann $(command_of "$action")
  wait_for "title in the language of $action" is_called "$title"
  end_tool
done <<'TITLES'
C.UTF-8 Desktop.Entry 显示屏测试工具
ru_RU.UTF-8 Desktop.Entry экранов
es_ES.UTF-8 Desktop.Entry Herramienta
ru_RU.UTF-8 Desktop.Action.de Testwerkzeug
TITLES

echo 'Two users'
keeps_settings $own ben tarntesttool
is_stored "ann/$own" 2 || fail 'one user has changed the settings of another'

echo 'Upgrade'
in_root sh -ec 'dpkg-deb -R /tmp/packages/*.deb /tmp/newer && echo >>/tmp/newer/usr/lib/tarntesttool/TarnTestTool
  sed -i "s/^Version: .*/&+newer/" /tmp/newer/DEBIAN/control && dpkg-deb -b /tmp/newer /tmp/newer.deb && dpkg -i /tmp/newer.deb' >>"$log"
start ann tarntesttool
wait_for 'pattern at its stored place after the upgrade' is_red 2
cmp "$root/home/ann/$own/TarnTestTool" "$root/usr/lib/tarntesttool/TarnTestTool" || fail 'the old program was started'
end_tool

echo 'Removal'
in_root apt-get purge -qq tarntesttool >>"$log" 2>&1
if ls -d "$root"/usr/{bin,lib,share/doc}/tarntesttool 2>/dev/null; then
  fail 'the package left something'
fi
is_stored "ann/$own" 2 || fail 'the settings are gone'
echo 'test-packages: all passed'
