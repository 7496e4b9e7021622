#!/usr/bin/env bash
# A set with translucent pixels, exported as a bitmap: another program sees the same pixels in it. The dialog and the
# hint lines are looked at with a real pointer.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

edge=8 tiles=3

# Two digits a byte: the pixel X, Y of a tile as red, green, blue, alpha, and its bytes in a tileset.
rgba() { printf -v color '%02x%02x%02x%02x' $(($1 * 70 + $2)) $(($2 * 30)) $(($3 * 30 + $1)) $((($2 * 9 + $3 * 27) % 256)); }
in_tileset() { color=${color:6:2}${color:4:2}${color:2:2}${color:0:2}; }

make_set() {
    local tile x y digits=51444c0a000808 bytes=""
    printf -v digits '%s%02x000000' "$digits" "$tiles"
    for ((tile = 0; tile < tiles; tile++)); do
        for ((y = 0; y < edge; y++)); do
            for ((x = 0; x < edge; x++)); do
                rgba "$tile" "$x" "$y"
                in_tileset
                digits+=$color
            done
        done
    done
    for ((x = 0; x < ${#digits}; x += 2)); do bytes+="\\x${digits:x:2}"; done
    printf '%b' "$bytes" >"$1"
}

# The picture of 16 x 16 tiles, row by row, one pixel a line.
expected_pixels() {
    local x y
    for ((y = 0; y < 16 * edge; y++)); do
        for ((x = 0; x < 16 * edge; x++)); do
            color=000000ff
            if [ "$y" -lt "$edge" ] && [ $((x / edge)) -lt "$tiles" ]; then
                rgba $((x / edge)) $((x % edge)) "$y"
            fi
            echo "$color"
        done
    done
}

make_set "$work/set.qdl"
start_editor
echo "$work/set.qdl" >"$work/answer"
shown click 20 12
click 40 88 # Load
wait_for_title "$work/set.qdl"
echo "$work/picture.png" >"$work/answer"
shown click 20 12
part=$middle shown click 40 188 # Export as .bmp
take_picture export_dialog
xdotool key Return
wait_until test -s "$work/picture.bmp" || fail "there is no picture"
settle
expected_pixels >"$work/expected"
expect_pixels "$work/picture.bmp" "$work/expected"

part=512x52+264+580
# Back from the dialog; the next motion ends what was reported.
move 500 320
settle
for place in "520 320 pixel" "796 68 icon" "100 500 palette"; do
    read -r x y name <<<"$place"
    part=$part shown move "$x" "$y"
    take_picture "hint_$name"
done
unset part
quit_editor
echo "passed"
