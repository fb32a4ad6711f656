#!/bin/sh
# Draws every image under resources/Image from the SVG sources in resources/svg.
#
# Needs rsvg-convert (librsvg), optipng, icotool (icoutils) and png2icns (icnsutils). The outputs are
# committed, so this runs only after a source or a colour below has changed; a
# second run with the same tools writes the same bytes.
#
# usage: scripts/make-images.sh [output folder]    default: resources/Image
set -eu

root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
sources=$root/resources/svg
images=${1:-$root/resources/Image}

for tool in rsvg-convert optipng icotool png2icns; do
    command -v "$tool" >/dev/null || { echo "$0: $tool is not installed" >&2; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

accent='#e67007'
accent_hover='#e97f20'
accent_pressed='#e2640c'
outline='#7d828b'
glyph='#c3c5ca'
disabled_face='#34363c'
disabled_outline='#585b62'
disabled_mark='#6f7279'

# draw SOURCE OUTPUT SIZE [CSS]: SOURCE.svg as a "WxH" picture of SIZE pixels, its default
# colours replaced by CSS on the classes in the source; and the same four times as large, for
# desktops that scale, in the folder beside.
draw()
{
    draw_one "$1" "$2" "${3%x*}" "${3#*x}" "${4:-}"
    case $2 in
        *2x.png) ;;
        *) draw_one "$1" "${images}4x${2#"$images"}" $((${3%x*} * 4)) $((${3#*x} * 4)) "${4:-}" ;;
    esac
}

# draw_one SOURCE OUTPUT WIDTH HEIGHT CSS
draw_one()
{
    printf '%s\n' "$5" >"$work/colours.css"
    mkdir -p "$(dirname "$2")"
    rsvg-convert --stylesheet="$work/colours.css" --width="$3" --height="$4" \
        --output="$2" "$sources/$1.svg"
    optipng -quiet -o5 -strip all "$2"
}

title_buttons()
{
    for state in normal hover pressed; do
        for button in close mix max return; do
            plate='#4b5057'
            case $state-$button in
                normal-*) css='' ;;
                hover-close) css='.plate { fill: #de5a5a } .ink { stroke: #ffffff }' ;;
                pressed-close) css='.plate { fill: #d23939 } .ink { stroke: #ffffff }' ;;
                hover-*) css=".plate { fill: $plate } .ink { stroke: #ffffff }" ;;
                pressed-*) css=".plate { fill: $accent_pressed } .ink { stroke: #ffffff }" ;;
            esac
            source=titlebar-$button
            [ "$button" = mix ] && source=titlebar-min # "mix" is the minimise button
            draw "$source" "$images/titleBar/btn_${button}_$state.png" 28x28 "$css"
            draw "$source" "$images/titleBar/btn_${button}_$state@2x.png" 56x56 "$css"
        done
    done
    draw titlebar-sign "$images/titleBar/sign.png" 16x16
}

# check NAME CSS: a check box indicator at one and at two times its size.
check()
{
    draw checkbox "$images/checkBox/btn_form_chackbox_$1.png" 14x14 "$2"
    draw checkbox "$images/checkBox/btn_form_chackbox_$1_2x.png" 28x28 "$2"
}

check_boxes()
{
    unmarked='.mark { stroke: none }'
    check check ".face { fill: $accent; stroke: $accent }"
    check check_disable \
        ".face { fill: $disabled_face; stroke: $disabled_outline } .mark { stroke: $disabled_mark }"
    check uncheck "$unmarked"
    check uncheck_hover "$unmarked .face { stroke: $accent_hover }"
    check uncheck_disable "$unmarked .face { fill: $disabled_face; stroke: $disabled_outline }"
}

radio() { draw radiobutton "$images/radiobutton/$1.png" 14x14 "$2"; }

radio_buttons()
{
    unmarked='.mark { fill: none }'
    on=".face { stroke: $accent } .mark { fill: $accent }"
    off="$unmarked .face { stroke: $outline }"
    off_hover="$unmarked .face { stroke: $accent_hover }"
    on_disabled=".face { fill: $disabled_face; stroke: $disabled_outline } .mark { fill: $disabled_mark }"
    off_disabled="$unmarked .face { fill: $disabled_face; stroke: $disabled_outline }"

    radio radiobutton_check "$on"
    radio radiobutton_check_hover ".face { stroke: #ffb36b } .mark { fill: #ff9a3d }"
    radio radiobutton_uncheck "$off"
    radio radiobutton_uncheck_hover "$off_hover"
    radio checked "$on"
    radio unchecked "$off"
    radio disabled_checked "$on_disabled"
    radio disabled_unchecked "$off_disabled"
    radio btn_form_radiobutton_selected_disable "$on_disabled"
    radio btn_form_radiobutton_unselected "$off"
    radio btn_form_radiobutton_unselected_hover "$off_hover"
    radio btn_form_radiobutton_unselected_disable "$off_disabled"
}

arrows()
{
    for way in up down; do
        spin=$images/spinbox/$way
        draw "spinbox-$way" "${spin}_normal.png" 9x7 ".mark { fill: $glyph }"
        draw "spinbox-$way" "${spin}_hover.png" 9x7 ".mark { fill: $accent_hover }"
        draw "spinbox-$way" "${spin}_pressed.png" 9x7 '.mark { fill: #ffffff }'
        draw "spinbox-$way" "${spin}_disabled.png" 9x7 ".mark { fill: $disabled_outline }"
        draw "scroll-$way" "$images/scrollBar/$way.png" 10x8 ".mark { fill: $glyph }"
        draw "scroll-$way" "$images/scrollBar/${way}Dark.png" 10x8 ".mark { fill: $disabled_outline }"
    done

    tab=$images/projectTab
    draw double-down "$tab/btn_ArrowDown_normalDouble.png" 16x16 ".ink { stroke: $glyph }"
    draw double-down "$tab/btn_ArrowDown_disableDouble.png" 16x16 ".ink { stroke: $disabled_outline }"
    draw double-up "$tab/btn_ArrowUp_normalDouble.png" 16x16 ".ink { stroke: $glyph }"
    draw chevron-down "$tab/combBox_normal.png" 16x16 ".ink { stroke: $glyph }"
    draw chevron-up "$tab/combBox_down.png" 16x16 ".ink { stroke: $accent_hover }"
    draw chevron-down "$tab/combBox_disabled.png" 16x16 ".ink { stroke: $disabled_outline }"
}

# logo SIZE: the application icon at SIZE pixels, always 32-bit as icon files want it.
logo()
{
    case $1 in
        16 | 32) source=application-16 ;;
        24) source=application-24 ;;
        *) source=application ;;
    esac
    rsvg-convert --width="$1" --height="$1" --output="$work/logo-$1.png" "$sources/$source.svg"
    optipng -quiet -o5 -nx -strip all "$work/logo-$1.png"
}

icons()
{
    mkdir -p "$images/logo"
    for size in 16 24 32 48 64 128 256 512; do
        logo $size
    done
    set --
    for size in 16 24 32 48 64 128 256; do
        set -- "$@" --raw="$work/logo-$size.png"
    done
    icotool --create --output="$images/logo/TarnTestTool.ico" "$@"
    png2icns "$images/logo/TarnTestTool_Mac.icns" "$work/logo-16.png" "$work/logo-32.png" \
        "$work/logo-128.png" "$work/logo-256.png" "$work/logo-512.png" >"$work/icns.log" \
        || { cat "$work/icns.log" >&2; exit 1; }
}

title_buttons
check_boxes
radio_buttons
arrows
icons
