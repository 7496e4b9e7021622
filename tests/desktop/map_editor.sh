#!/usr/bin/env bash
# A level of 60 x 40 is laid out of 30 tiles by mouse and keys, saved, loaded again, and exported: another program
# draws the same picture of it, pixel by pixel.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

edge=16 tiles=30

# Tiles of which no two are alike, nor any when it is turned; each has a transparent corner.
make_set() {
    local tile x y bytes alpha
    printf -v bytes 'QDL\\n\\0\\x%x\\x%x\\x%x\\0\\0\\0' "$edge" "$edge" "$tiles"
    for ((tile = 0; tile < tiles; tile++)); do
        for ((y = 0; y < edge; y++)); do
            for ((x = 0; x < edge; x++)); do
                alpha=$((x + y < 5 ? 0 : 255))
                printf -v bytes '%s\\x%x\\x%x\\x%x\\x%x' "$bytes" "$alpha" $((tile * 8 * (alpha > 0))) \
                    $((y * 15 * (alpha > 0))) $((x * 15 * (alpha > 0)))
            done
        done
    done
    printf '%b' "$bytes" >"$1"
}

# In the middle of the place at COLUMN ROW, in real size and with the middle of the map in the middle of the view.
place() { echo $((9 + (1008 - 60 * edge) / 2 + edge * $1 + edge / 2)) $((61 + (549 - 40 * edge) / 2 + edge * $2 + edge / 2)); }
in_list() {
    local row=$(($1 / 6))
    echo $((1031 + $1 % 6 * 32 + 16)) $((61 + row * 32 + 16))
}
# shellcheck disable=SC2046 # two numbers each
choose() { click $(in_list "$1"); }
# shellcheck disable=SC2046
put() { click $(place "$1" "$2"); }
# shellcheck disable=SC2046
draw() { drag $(place "$1" "$2") $(place "$3" "$4") "${5:-1}"; }
open_map() {
    shown click "$tools_menu" 12
    click "$tools_menu" 62
    settle
}
export_to() {
    echo "$work/$1" >"$work/answer"
    xdotool key ctrl+e
    wait_until test -s "$work/$1" || fail "there is no $1"
    settle
}

tools_menu=168
make_set "$work/set.qdl"
start_editor
echo "$work/set.qdl" >"$work/answer"
shown click 20 12
click 40 88 # Load
wait_for_title "$work/set.qdl"
open_map
press_key Return
choose 7
press_key f
put 30 20
press_key p
for tile in 0 3 9 14 29; do
    choose "$tile"
    draw $((tile * 2)) 5 $((tile + 20)) 30
    press_key r
    draw $((tile * 2)) 8 $((tile + 20)) 33
    press_key x
    put $((tile + 10)) 25
done
# shellcheck disable=SC2046
drag $(in_list 12) $(in_list 26)
xdotool keydown Shift_L
draw 40 10 50 24
xdotool keyup Shift_L
press_key r
put 20 20
press_key e
draw 5 35 25 35
press_key e
draw 8 8 14 16 3
press_key x
put 3 21
press_key ctrl+z
press_key ctrl+r
take_picture map_editor
press_key ctrl+s
[ ! -s "$work/set.map" ] && press_key Return
wait_until test -s "$work/set.map" || fail "the map is not saved"
press_key Escape
quit_editor

start_editor
echo "$work/set.qdl" >"$work/answer"
shown click 20 12
click 40 88 # Load
wait_for_title "$work/set.qdl"
open_map
export_to level.tmx
export_to whole.png
press_key Escape
quit_editor

command -v tmxrasterizer >/dev/null || fail "there is no tmxrasterizer: scripts/setup test installs it"
QT_QPA_PLATFORM=offscreen timeout 60 tmxrasterizer "$work/level.tmx" "$work/drawn.png"
pixels_of "$work/whole.png" >"$work/expected"
expect_pixels "$work/drawn.png" "$work/expected"
echo "passed"
