# shellcheck shell=bash
# The program on a virtual X server of its own, for the scripts that take pictures of it. Sourced
# with the root of the checkout as the current folder, after the program has been built.
#
# shellcheck disable=SC2034  # The windows are for those that source this.

scratch=$(mktemp -d)
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

# start_desktop WIDTHxHEIGHT
start_desktop() {
  local number
  mkfifo "$scratch/display"
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$scratch/display" 2>/dev/null &
  server=$!
  read -r number <"$scratch/display"
  export DISPLAY=:$number QT_QPA_PLATFORM=xcb
  openbox --sm-disable >/dev/null 2>&1 &
  manager=$!
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
