#!/usr/bin/env bash
# Takes the pictures of the README from the real program, on a virtual X server of
# its own, into docs/images/, and those of the Chinese README into docs/images/zh-CN/;
# and the one that is a pattern alone, by TarnTestPattern.
# Needs Xvfb, openbox, xdotool and ImageMagick.
#
# Usage: scripts/screenshots.sh   after ./run.sh or ./test.sh has built the program
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
scripts/setup.sh pictures
ensure_runtime_dir
. scripts/virtual-tool.sh

control_x=330 control_y=280

# picture NAME: what the desktop shows once it has been painted.
picture() {
  sleep 1
  import -silent -window root "$folder/$1.png"
}

# next TIMES: so many patterns further.
next() {
  xdotool key --delay 200 --repeat "$1" --repeat-delay 200 Next
}

# click X Y: in the control window; the pointer does not stay there.
click() {
  xdotool mousemove $((control_x + $1)) $((control_y + $2)) click 1
  xdotool mousemove 990 590
}

# take_all LANGUAGE FOLDER
take_all() {
  folder=$2
  mkdir -p "$folder"
  start_tool "$1" "$control_x" "$control_y"
  xdotool windowmove --sync "$test_window" 40 40
  xdotool mousemove 990 590
  picture placement
  next 2
  picture purity
  next 4
  picture gradient
  next 5
  picture grid
  click 373 40
  click 526 211
  picture cabinet
  click 456 40
  picture help
  end_tool
}

start_desktop 1000x600
take_all en docs/images
take_all zh docs/images/zh-CN
build/bin/TarnTestPattern layout --size 640x160 --numbers from-right -o docs/images/layout-file.png
