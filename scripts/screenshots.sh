#!/usr/bin/env bash
# Takes the pictures of the README from the real program, on a virtual X server of
# its own, into docs/images/. Needs Xvfb, openbox, xdotool and ImageMagick.
#
# Usage: scripts/screenshots.sh   after ./run.sh or ./test.sh has built the program
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
ensure_runtime_dir

scratch=$(mktemp -d)
server='' manager='' tool=''
end_all() {
  local process
  for process in $tool $manager $server; do
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  rm -rf "$scratch"
}
trap end_all EXIT

# In a folder of its own the program starts with its defaults.
cp -r build/bin/TarnTestTool build/bin/ts "$scratch"
mkfifo "$scratch/display"
Xvfb -displayfd 3 -screen 0 1000x600x24 -nolisten tcp 3>"$scratch/display" 2>/dev/null &
server=$!
read -r number <"$scratch/display"
export DISPLAY=:$number
openbox >/dev/null 2>&1 &
manager=$!
(cd "$scratch" && exec ./TarnTestTool en) &
tool=$!

control=$(xdotool search --sync --onlyvisible --name 'LED Screen Test Tool')
test_window=$(xdotool search --sync --onlyvisible --name '^Form$')
xdotool windowmove --sync "$control" 330 280
xdotool windowfocus --sync "$control"

# picture NAME: what the desktop shows once it has been painted.
picture() {
  sleep 1
  import -silent -window root "docs/images/$1.png"
}

# next TIMES: so many patterns further.
next() {
  xdotool key --delay 200 --repeat "$1" --repeat-delay 200 Next
}

xdotool windowmove --sync "$test_window" 40 40
xdotool mousemove 990 590
picture placement
next 2
picture purity
next 4
picture gradient
next 5
picture grid
