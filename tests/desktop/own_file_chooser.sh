#!/usr/bin/env bash
# Where there is neither a desktop portal nor zenity, the program's own dialog takes over: saves under a typed name,
# loads that file with the mouse, gives up, and saves over it.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

mkdir "$work/nothing"
# shellcheck disable=SC2034 # for start_editor
program_path=$work/nothing
export XDG_RUNTIME_DIR=$work/nothing

# The dialog, which lies apart from the menus and the pointer's marks.
dialog=640x530+296+67
# The rows of the list: the way up, the folder "data", then the file.
row_x=450
row_y() { echo $((142 + 24 * $1)); }
set_size=$((11 + 24 * 24 * 4))

start_editor
wait_for_title untitled0.qdl
shown drag "$(pixel_x 2)" "$(pixel_y 3)" "$(pixel_x 9)" "$(pixel_y 3)"
part=$dialog shown xdotool key ctrl+s
take_picture own_save
part=$dialog shown xdotool type "my tiles.png"
shown xdotool key Return
saved=$work/run/my\ tiles.qdl
wait_for_file "$saved" "$set_size"
wait_for_title "$saved"
first=$(cksum <"$saved")
quit_editor

start_editor
shown click 20 12
part=$dialog shown click 40 88 # Load
part=$dialog shown click "$row_x" "$(row_y 2)"
take_picture own_load
part=$dialog shown click "$row_x" "$(row_y 2)"
wait_for_title "$saved"

shown drag "$(pixel_x 2)" "$(pixel_y 6)" "$(pixel_x 9)" "$(pixel_y 6)"
wait_for_title "$saved*"
shown click 20 12
part=$dialog shown click 40 163 # Save as...
part=$dialog shown xdotool key Escape
[ "$(cksum <"$saved")" = "$first" ] || fail "the file changed although the dialog was given up"
shown click 20 12
part=$dialog shown click 40 163
part=$dialog shown click "$row_x" "$(row_y 2)"
part=$dialog shown xdotool key Return # brings the question
take_picture own_question
part=$dialog shown xdotool key y
wait_for_title "$saved"
[ "$(cksum <"$saved")" != "$first" ] || fail "the file did not change"
quit_editor
echo "passed"
