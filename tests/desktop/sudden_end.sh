#!/usr/bin/env bash
# When the display goes away, or an error ends the program, it ends at once, with an error, and takes nothing apart. The
# next start brings back what was drawn.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

own_display=$DISPLAY

draw_dot() {
    move "$(pixel_x "$1")" "$(pixel_y "$1")"
    shown xdotool click 1
}
expect_error() {
    local status=0
    wait_until has_ended || fail "the program goes on"
    wait "$editor_pid" || status=$?
    editor_pid=""
    [ "$status" -eq 1 ] || fail "exit status $status: $(cat "$work/output")"
}
# Fails unless the pixels of the diagonal that are named are white.
recover_dots() {
    local dot color
    part=$middle shown xdotool key Return
    move 300 620
    settle
    for dot in "$@"; do
        color=$(timeout 10 import -window "$editor_window" -crop "1x1+$(pixel_x "$dot")+$(pixel_y "$dot")" +repage -depth 8 rgb:- |
            od -An -tx1)
        [ "$color" = " ff ff ff" ] || fail "the dot $dot has the colour $color"
    done
}

mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1280x720x24 3>"$work/display" >/dev/null 2>&1 &
server=$!
read -r number <"$work/display"
export DISPLAY=:$number

start_editor
draw_dot 3
kill -9 "$server"
expect_error

export DISPLAY=$own_display
start_editor
recover_dots 3
draw_dot 5
printf 'QDL\n\0\10\10\5\0\0\0' >"$work/short.qdl"
echo "$work/short.qdl" >"$work/answer"
shown click 20 12
move 40 88 # Load
settle
xdotool click 1
expect_error
[ "$(sed -n 1p "$work/output")" = "Error: Unable to load block from  $work/short.qdl!" ] || fail "$(cat "$work/output")"
start_editor
part=$middle shown xdotool key Return # the note on the error
recover_dots 3 5
quit_editor
