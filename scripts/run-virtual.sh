#!/usr/bin/env bash
# Runs the tool on a virtual X server with a window manager, saves a picture of
# that desktop once the control window is drawn, and stays until the tool ends.
# SIGINT, SIGTERM and SIGHUP end the tool in its ordinary way.
#
# Usage: scripts/run-virtual.sh PROGRAM [ARGUMENT...]
# shellcheck disable=SC2317  # Several functions are called by name, from wait_for and the traps.
set -euo pipefail
cd "$(dirname "$0")/.."

picture=$PWD/build/desktop.png
log=$PWD/build/desktop.log
deadline=$((SECONDS + 60))
scratch=$(mktemp -d)
server='' manager='' tool='' interrupted=''

# Each in a session of its own: Ctrl+C in the terminal must reach nobody but
# this script, which sees to the order in which they end.
end_all() {
  local process
  for process in $tool $manager $server; do
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  rm -rf "$scratch"
}
trap end_all EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

fail() {
  echo "run-virtual: $1; see $log" >&2
  exit 1
}

# wait_for WHAT COMMAND...: repeats the command until it succeeds.
wait_for() {
  local what=$1
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$deadline" ] || fail "no $what in time"
    sleep 0.1
  done
}

manager_is_up() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

# Prints the id of the control window; the test window is also a utility window.
control_window() {
  local id
  for id in $(xprop -root _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*'); do
    if ! xprop -id "$id" _NET_WM_WINDOW_TYPE | grep -q UTILITY \
      && xwininfo -id "$id" | grep -q 'Map State: IsViewable'; then
      echo "$id"
      return
    fi
  done
  return 1
}

# A window that is mapped but not painted yet has one colour.
control_window_is_drawn() {
  local id
  id=$(control_window) && [ "$(import -silent -window "$id" -format '%k' info:)" -gt 1 ]
}

tool_ended_or_is_drawn() { ! kill -0 "$tool" || control_window_is_drawn; }

mkfifo "$scratch/display"
setsid Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp -noreset \
  3>"$scratch/display" >"$log" 2>&1 &
server=$!
read -r -t 30 number <"$scratch/display" || fail 'the X server did not start'
export DISPLAY=:$number QT_QPA_PLATFORM=xcb

setsid openbox --sm-disable >>"$log" 2>&1 &
manager=$!
wait_for 'window manager' manager_is_up

setsid "$@" &
tool=$!
trap 'interrupted=yes; kill -TERM "$tool" 2>/dev/null || true' INT TERM HUP
wait_for 'control window' tool_ended_or_is_drawn
if control_window_is_drawn 2>/dev/null; then
  import -silent -window root "$picture"
  echo "No display here: running on the virtual display $DISPLAY, its picture is $picture;" \
    "Ctrl+C (or kill $$) ends it."
fi

# A signal cuts "wait" short, so wait again for the tool's own exit status.
status=0
while
  interrupted=''
  wait "$tool" && status=0 || status=$?
  [ -n "$interrupted" ]
do :; done
tool=''
exit "$status"
