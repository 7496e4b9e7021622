#!/usr/bin/env bash
# The program for Windows: what it saves, over an older file too, is to the byte what the program here saves after the
# same strokes, under a name outside ASCII, and with the rights that the file had; and it loads it again.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"
# shellcheck source=tests/desktop/common_wine.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common_wine.sh"
[ -e "$QUADRELLE_WINDOWS_PROGRAM" ] || skip "there is no build for Windows"

first_stroke() { shown drag "$(pixel_x 2)" "$(pixel_y 3)" "$(pixel_x 9)" "$(pixel_y 3)"; }
second_stroke() { shown drag "$(pixel_x 5)" "$(pixel_y 1)" "$(pixel_x 5)" "$(pixel_y 20)"; }
set_size=$((11 + 24 * 24 * 4))

start_editor
first_stroke
echo "$work/here.qdl" >"$work/answer"
xdotool key ctrl+s
wait_for_title "$work/here.qdl"
cp "$work/here.qdl" "$work/here_first.qdl"
second_stroke
wait_for_title "$work/here.qdl*"
xdotool key ctrl+s
wait_for_title "$work/here.qdl"
quit_editor

QUADRELLE_PROGRAM=$(wine_command "$QUADRELLE_WINDOWS_PROGRAM")
folder="$work/Größe 漢字"
mv "$work/run" "$folder"
run_folder=$folder
saved=$folder/tiles.qdl
start_editor
first_stroke
xdotool key ctrl+s
answer_system_dialog "Save As" tiles windows_save
wait_for_file "$saved" "$set_size"
wait_for_title "$(windows_path "$saved")"
cmp "$saved" "$work/here_first.qdl" || fail "the program for Windows saves other bytes"
chmod 640 "$saved"
second_stroke
wait_for_title "$(windows_path "$saved")*"
xdotool key ctrl+s
wait_for_title "$(windows_path "$saved")"
cmp "$saved" "$work/here.qdl" || fail "the program for Windows saves other bytes over a file"
case $(stat -c %a "$saved") in *0) ;; *) fail "everybody may read the file now" ;; esac
[ "$(echo "$folder"/*)" = "$folder/data $saved" ] || fail "there is more in the folder: $(ls "$folder")"
quit_editor

start_editor
before=$(fingerprint)
xdotool key ctrl+o
answer_system_dialog "Open" tiles.qdl windows_load
wait_for_title "$(windows_path "$saved")"
settle
[ "$(fingerprint)" != "$before" ] || fail "nothing is shown of what was loaded"
take_picture windows_loaded
quit_editor
echo "passed"
