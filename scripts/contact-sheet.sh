#!/usr/bin/env bash
# Takes a picture of every tab and every dialog in the six languages from the real program, on a
# virtual X server of its own, and puts them all on one sheet: a row for each language. Needs
# Xvfb, openbox, xdotool and ImageMagick.
#
# Usage: scripts/contact-sheet.sh [SHEET]   after ./run.sh or ./test.sh has built the program;
#   the sheet is build/contact-sheet.png if no other file is named; QT_SCALE_FACTOR says how large
#   the controls are
set -euo pipefail
sheet=$(realpath -m "${1:-$(dirname "$0")/../build/contact-sheet.png}")
cd "$(dirname "$0")/.."
. scripts/common.sh
scripts/setup.sh pictures
ensure_runtime_dir
. scripts/virtual-tool.sh

languages=(z e f d s r)
tabs=7
dialog_kinds=3

# scaled LENGTH: what a length comes to on a desktop that scales, rounded down.
percent=$(awk "BEGIN { print int(${QT_SCALE_FACTOR:-1} * 100) }")
scaled() { echo $(($1 * percent / 100)); }

# The control window's place on the desktop, and what lies where in it at a scale of 1.
control_x=40 control_y=40
tab_width=83 tab_y=40 panel_y=53

pictures=()

# click X Y: in the control window.
click() {
  xdotool mousemove $((control_x + $(scaled "$1"))) $((control_y + $(scaled "$2"))) click 1
}

# picture NAME [WINDOW]: a window, the control window if none is named, without the pointer's traces.
picture() {
  xdotool mousemove "$(scaled 1270)" "$(scaled 790)"
  sleep 0.6
  import -silent -window "${2:-$control}" "$scratch/$1.png"
  pictures+=("$scratch/$1.png")
}

# new_window: waits for a window that was not there at the last "known_windows", prints its id.
known_windows() { client_windows >"$scratch/known"; }
unknown_window() { client_windows | grep -m1 -vxFf "$scratch/known"; }
new_window() { wait_for dialog unknown_window; }

# place_of WINDOW: sets x and y.
place_of() {
  x=$(xwininfo -id "$1" | sed -n 's/.*Absolute upper-left X: *//p')
  y=$(xwininfo -id "$1" | sed -n 's/.*Absolute upper-left Y: *//p')
}

# layout_dialog LANGUAGE: the advanced settings of the cabinet layout.
layout_dialog() {
  local advanced x y
  click 526 $((panel_y + 158))
  known_windows
  click 446 $((panel_y + 158))
  advanced=$(new_window)
  picture "$1-advanced" "$advanced"
  place_of "$advanced"
  xdotool mousemove $((x + $(scaled 180))) $((y + $(scaled 193))) click 1
}

# grid_dialogs LANGUAGE: the mix dialog, and its warning that nothing is chosen.
grid_dialogs() {
  local mix warning x y
  known_windows
  click 530 $((panel_y + 168))
  mix=$(new_window)
  picture "$1-mix" "$mix"
  place_of "$mix"
  known_windows
  xdotool mousemove $((x + $(scaled 225))) $((y + $(scaled 320))) click 1
  xdotool mousemove $((x + $(scaled 180))) $((y + $(scaled 392))) click 1
  warning=$(new_window)
  picture "$1-warning" "$warning"
}

start_desktop "$(scaled 1280)x$(scaled 800)"
for language in "${languages[@]}"; do
  start_tool "$language" "$control_x" "$control_y"
  xdotool windowmove --sync "$test_window" "$(scaled 800)" 40
  for ((tab = 0; tab < tabs; ++tab)); do
    click $((tab_width / 2 + tab * tab_width)) $tab_y
    picture "$language-$tab"
  done
  click $((tab_width / 2 + 4 * tab_width)) $tab_y
  layout_dialog "$language"
  click $((tab_width / 2 + 3 * tab_width)) $tab_y
  grid_dialogs "$language"
  end_tool
done

mkdir -p "$(dirname "$sheet")"
montage=$(command -v montage-im6.q16 || command -v montage)
"$montage" "${pictures[@]}" -tile $((tabs + dialog_kinds))x -geometry +6+6 -background '#808080' "$sheet"
echo "contact-sheet: ${#pictures[@]} pictures are on $sheet"
