# shellcheck shell=bash
# A virtual X server with a window manager, and the program on it, for the scripts that show the
# program without a display or take pictures of it. Sourced with the root of the checkout as the
# current folder, after the program has been built.
#
# shellcheck disable=SC2034  # The windows are for those that source this.

scratch=$(mktemp -d)
log=/dev/null
server='' manager='' tool=''

# end PROCESS: tells a process of ours to end and waits until it has.
end() {
  kill "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
}

end_all() {
  local process
  for process in $tool $manager $server; do
    end "$process"
  done
  rm -rf "$scratch"
}
trap end_all EXIT

fail() {
  echo "$0: $1; see $log" >&2
  exit 1
}

# wait_for WHAT COMMAND...: repeats the command until it succeeds, for a minute at most.
wait_for() {
  local what=$1 deadline=$((SECONDS + 60))
  shift
  until "$@" 2>/dev/null; do
    [ "$SECONDS" -lt "$deadline" ] || fail "no $what in time"
    sleep 0.1
  done
}

# client_windows: the ids of the windows that the manager knows.
client_windows() { xprop -root _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*'; }

manager_is_up() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

# start_desktop WIDTHxHEIGHT: its processes in sessions of their own, since Ctrl+C in the terminal
# must reach nobody but the script, which sees to the order in which they end.
start_desktop() {
  local number
  mkfifo "$scratch/display"
  setsid Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset \
    3>"$scratch/display" >"$log" 2>&1 &
  server=$!
  read -r -t 30 number <"$scratch/display" || fail 'the X server does not start'
  export DISPLAY=:$number QT_QPA_PLATFORM=xcb
  setsid openbox --sm-disable >>"$log" 2>&1 &
  manager=$!
  wait_for 'window manager' manager_is_up
}

# start_tool LANGUAGE X Y: starts the program in a folder of its own, and so with its defaults,
# puts the control window at this place and gives it the keyboard.
start_tool() {
  rm -rf "$scratch/tool"
  mkdir "$scratch/tool"
  cp -r build/bin/TarnTestTool build/bin/ts "$scratch/tool"
  (cd "$scratch/tool" && exec ./TarnTestTool "$1") &
  tool=$!
  test_window=$(xdotool search --sync --onlyvisible --name '^Form$')
  control=$(xdotool search --sync --onlyvisible --name 'Tarn$')
  xdotool windowmove --sync "$control" "$2" "$3"
  xdotool windowfocus --sync "$control"
}

end_tool() {
  end "$tool"
  tool=''
}
