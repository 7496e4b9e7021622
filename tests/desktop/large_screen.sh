#!/usr/bin/env bash
# On a display of twice and three times the density the window shows the same, in squares, and the pointer meets what
# it shows; in a window of another size, and on a display that is too small, nothing is cut off.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

# A stroke, and a menu below the pointer, into that picture.
draw_and_look() {
    shown drag "$(pixel_x 2)" "$(pixel_y 3)" "$(pixel_x 20)" "$(pixel_y 12)"
    click 20 12
    move 40 130
    settle
    picture "$1"
}
end_editor() {
    press_key Escape
    middle=$((180 * zoom))x$((140 * zoom))+$((526 * zoom + margin_x))+$((262 * zoom + margin_y))
    quit_editor
}
expect_same() { [ "$(compare -metric AE "$1" "$2" null: 2>&1)" = 0 ] || fail "$1 shows other pixels than $2"; }

zoom=1
margin_x=0
margin_y=0
start_editor
draw_and_look "$work/once.png"
end_editor
for zoom in 2 3; do
    export SDL_VIDEO_X11_SCALING_FACTOR=$zoom
    start_editor
    draw_and_look "$work/larger.png"
    take_picture "large_screen_$zoom"
    convert "$work/once.png" -scale "${zoom}00%" "$work/expected.png"
    expect_same "$work/larger.png" "$work/expected.png"
    end_editor
done

# Another size than it asked for: in the middle.
zoom=1
export SDL_VIDEO_X11_SCALING_FACTOR=1
start_editor
xdotool windowsize "$editor_window" 1332 704
margin_x=50
margin_y=20
settle
draw_and_look "$work/beside.png"
take_picture large_screen_beside
convert "$work/beside.png" -crop 1232x664+50+20 +repage "$work/middle.png"
expect_same "$work/middle.png" "$work/once.png"
[ "$(convert "$work/beside.png" -crop 50x704+0+0 +repage -unique-colors -format %w info:)" = 1 ] ||
    fail "something is drawn beside the picture"
end_editor
echo "passed"
