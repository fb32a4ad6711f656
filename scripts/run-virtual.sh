#!/usr/bin/env bash
# Runs the tool on a virtual X server with a window manager, saves a picture of
# that desktop once the control window is drawn, and stays until the tool ends.
# SIGINT, SIGTERM and SIGHUP end the tool in its ordinary way.
#
# Usage: scripts/run-virtual.sh PROGRAM [ARGUMENT...]
# shellcheck disable=SC2317  # Several functions are called by name, from wait_for and the traps.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/virtual-tool.sh

picture=$PWD/build/desktop.png
log=$PWD/build/desktop.log
interrupted=''
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# Prints the id of the control window; the test window is also a utility window.
control_window() {
  local id
  for id in $(client_windows); do
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

start_desktop 1920x1080

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
