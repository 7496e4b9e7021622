#!/usr/bin/env bash
# What people download for Windows, unpacked and started: in its own folder, and where that cannot be written to in one
# of the user's own. What ended it is shown.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"
# shellcheck source=tests/desktop/common_wine.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common_wine.sh"
archive=$(echo "$QUADRELLE_SOURCE_DIR"/build/packages/quadrelle-*-windows-x86_64.zip)
[ -e "$archive" ] || skip "scripts/package has made no archive"

mkdir "$work/Größe 漢字"
unzip -q "$archive" -d "$work/Größe 漢字"
tree=$(echo "$work/Größe 漢字"/*)
QUADRELLE_PROGRAM=$(wine_command "$tree/Quadrelle.exe")
start_editor
shown drag "$(pixel_x 2)" "$(pixel_y 3)" "$(pixel_x 9)" "$(pixel_y 3)"
xdotool key ctrl+s
answer_system_dialog "Save As" tiles archive_windows
wait_for_file "$tree/tiles.qdl" $((11 + 24 * 24 * 4))
wait_for_title "$(windows_path "$tree/tiles.qdl")"
quit_editor
[ -e "$tree/data/history" ] || fail "the program runs elsewhere"

# Nobody can write a file where there is a folder of that name.
mkdir "$tree/data/.quadrelle-launcher.tmp"
own=$WINEPREFIX/drive_c/users/$(id -un)/AppData/Roaming
mkdir -p "$own"
own+=/Quadrelle
start_editor
quit_editor
cmp "$own/data/pool.bmp" "$tree/data/pool.bmp" || fail "the folder of the user's own is not there"
printf '\40\0\0\0001,2,' >"$own/data/palette.dat"
"$QUADRELLE_PROGRAM" >"$work/output" 2>&1 &
editor_pid=$!
editor_window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Quadrelle$') || fail "the error is not shown"
settle
take_picture archive_windows_error
move 20 20
xdotool key Return
wait_until has_ended || fail "the launcher did not end"
status=0
wait "$editor_pid" || status=$?
editor_pid=""
[ $status -eq 1 ] || fail "exit status $status of a start that cannot be"
echo "passed"
