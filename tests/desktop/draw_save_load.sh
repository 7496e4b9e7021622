#!/usr/bin/env bash
# A person's walk: draws, zooms, pans and centres, makes a set of another size, saves it, ends, starts again, loads it,
# saves it again: the files hold the same pixels.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

hex() { od -An -tx1 -v -j "$2" -N "$3" "$1" | tr -d ' \n'; }
# Fails unless pixel X, Y of the set in the file has the colour AABBGGRR.
expect_pixel() {
    local color
    color=$(hex "$1" $((11 + ($3 * 32 + $2) * 4)) 4)
    [ "$color" = "$4" ] || fail "pixel ($2, $3) of $1 is $color, not $4"
}

choose_from_file_menu() {
    shown click 20 12
    click 40 "$1"
}

# Fails unless the question has the size of the one that warns, or of the one that does not.
quit_after_question() {
    local size
    # No brush that gives way to the question, and no report: the pointer's return from a dialog leaves it.
    move 690 20
    settle
    move 700 20
    settle
    picture "$work/before.png"
    ask_to_quit
    take_picture "quit_$1"
    picture "$work/question.png"
    size=$(convert "$work/before.png" "$work/question.png" -compose difference -composite -trim -format %wx%h info:)
    [ "$size" = "$2" ] || fail "the question about $1 tiles has the size $size"
    confirm_quit
}

# Clicks a number of the dialog, which asks for another, and types it.
set_number() {
    local height=$1 name=$2 digit
    shift 2
    shown click 639 "$height"
    for digit in "$@"; do shown xdotool key "$digit"; done
    take_picture "$name"
    shown xdotool key Return
}

start_editor
wait_for_title untitled0.qdl
take_picture start

# A stroke from pixel (2, 3) to (9, 3); the wheel, Ctrl with the right button and the keypad's star come back to where
# they started.
shown drag "$(pixel_x 2)" "$(pixel_y 3)" "$(pixel_x 9)" "$(pixel_y 3)"
wait_for_title untitled0.qdl*
take_picture stroke
at_start=$(part=$middle fingerprint)
shown click 520 320 4
take_picture zoomed
xdotool keydown ctrl
shown drag 500 300 460 260 3
xdotool keyup ctrl
take_picture panned
shown press_key KP_Multiply
shown click 520 320 5
move 1200 600; settle
take_picture centred
[ "$(part=$middle fingerprint)" = "$at_start" ] || fail "the way back led elsewhere"

shown click 20 12
take_picture menu
part=$middle shown click 40 37 # New, whose dialog comes after the menu has gone
set_number 306 width 3 2
set_number 329 height 1 6
take_picture new_tileset
shown click 569 378 # Ok
wait_for_title untitled1.qdl
shown drag $((360 + 25)) $((240 + 35)) $((360 + 95)) $((240 + 35))
shown click $((360 + 315)) $((240 + 155))
wait_for_title untitled1.qdl*
take_picture wide_tile

mkdir "$work/tiles ü"
echo "$work/tiles ü/first.png" >"$work/answer"
xdotool key ctrl+s
first="$work/tiles ü/first.qdl"
wait_for_file "$first" $((11 + 32 * 16 * 4))
wait_for_title "$first"
take_picture saved
[ "$(hex "$first" 0 11)" = 51444c0a00201001000000 ] || fail "the header is $(hex "$first" 0 11)"
for column in 2 5 9; do expect_pixel "$first" $column 3 ffffffff; done
expect_pixel "$first" 31 15 ffffffff
for column in 1 10; do expect_pixel "$first" $column 3 ff000000; done
expect_pixel "$first" 30 15 ff000000
quit_after_question unsaved 245x122 # the first set was never saved

start_editor
echo "$first" >"$work/answer"
choose_from_file_menu 88  # Load
wait_for_title "$first"
take_picture loaded
echo "$work/second.qdl" >"$work/answer"
choose_from_file_menu 163 # Save as...
wait_for_title "$work/second.qdl"
cmp "$first" "$work/second.qdl" || fail "the pixels changed on the way through the file"

# A file that is no tileset and a cancelled dialog change nothing.
echo "no tileset" >"$work/wrong.qdl"
echo "$work/wrong.qdl" >"$work/answer"
shown click 20 12
part=$middle shown click 40 88
take_picture wrong_file
part=$middle shown xdotool key Return
: >"$work/answer"
: >"$work/asked"
choose_from_file_menu 88
wait_until dialog_is_over || fail "the dialog was not asked for, or is still open"
settle
has_title "$work/second.qdl" || fail "the title is $(title)"
quit_after_question saved 170x99
echo "passed"
