#!/usr/bin/env bash
# Draws, zooms, pans and centres, makes a set of another size, saves, ends, starts again, loads, saves again: the
# files hold the same pixels.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

byte_at() { od -An -tu1 -j "$2" -N 4 "$1" | tr -s ' '; }

start_editor
[ "$(title)" = "Quadrelle 0.90 - untitled0.qdl" ] || fail "title at start: $(title)"

# A stroke from pixel (2, 3) to (9, 3), and one pixel at (20, 20) after zooming in and out and centring.
drag "$(pixel_x 2)" "$(pixel_y 3)" "$(pixel_x 9)" "$(pixel_y 3)"
[ "$(title)" = "Quadrelle 0.90 - untitled0.qdl*" ] || fail "title after a stroke: $(title)"
click 520 320 4
click 520 320 5
xdotool keydown ctrl
drag 500 300 460 260 3
xdotool keyup ctrl
press_key KP_Multiply
click "$(pixel_x 20)" "$(pixel_y 20)"

mkdir "$work/tiles ü"
echo "$work/tiles ü/first.png" >"$work/answer"
press_key ctrl+s
first="$work/tiles ü/first.qdl"
[ -s "$first" ] || fail "nothing was saved"
[ "$(stat -c %s "$first")" -eq 2315 ] || fail "size of the file: $(stat -c %s "$first")"
for column in 2 5 9; do
    [ "$(byte_at "$first" $((11 + (3 * 24 + column) * 4)))" = " 255 255 255 255" ] || fail "pixel ($column, 3)"
done
[ "$(byte_at "$first" $((11 + (20 * 24 + 20) * 4)))" = " 255 255 255 255" ] || fail "pixel (20, 20)"
[ "$(byte_at "$first" $((11 + (3 * 24 + 10) * 4)))" = " 255 0 0 0" ] || fail "pixel (10, 3) was touched"
[ "$(title)" = "Quadrelle 0.90 - $first" ] || fail "title after saving: $(title)"
quit_editor

start_editor
echo "$first" >"$work/answer"
click 20 12  # File
click 40 88  # Load
[ "$(title)" = "Quadrelle 0.90 - $first" ] || fail "title after loading: $(title)"
echo "$work/second.qdl" >"$work/answer"
click 20 12
click 40 163 # Save as...
cmp "$first" "$work/second.qdl" || fail "the pixels changed on the way through the file"

# A cancelled dialog and a file that is no tileset change nothing.
: >"$work/answer"
click 20 12
click 40 88
[ "$(title)" = "Quadrelle 0.90 - $work/second.qdl" ] || fail "title after cancelling: $(title)"
echo "no tileset" >"$work/wrong.qdl"
echo "$work/wrong.qdl" >"$work/answer"
click 20 12
click 40 88
press_key Return
[ "$(title)" = "Quadrelle 0.90 - $work/second.qdl" ] || fail "title after a wrong file: $(title)"
is_running || fail "the program ended"
quit_editor
echo "passed"
