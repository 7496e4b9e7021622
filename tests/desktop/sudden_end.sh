#!/usr/bin/env bash
# When the display goes away the program ends at once, with an error, and takes nothing apart.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1280x720x24 3>"$work/display" >/dev/null 2>&1 &
server=$!
read -r number <"$work/display"
export DISPLAY=:$number

start_editor
move "$(pixel_x 3)" "$(pixel_y 3)"
shown xdotool click 1
kill -9 "$server"
wait_until has_ended || fail "the program goes on without a display"
status=0
wait "$editor_pid" || status=$?
editor_pid=""
[ "$status" -eq 1 ] || fail "exit status $status: $(cat "$work/output")"
