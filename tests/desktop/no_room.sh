#!/usr/bin/env bash
# Without room on the disk, with a data folder that cannot be written to, and with one that has vanished: the program
# goes on, says once what is not protected, and nothing is lost that can be kept elsewhere.
set -euo pipefail
# A disk of its own needs rights that a user has in a world of his own.
if [ "${QUADRELLE_OWN_DISKS:-}" != yes ]; then
    export QUADRELLE_OWN_DISKS=yes
    if ! unshare --mount --map-root-user true 2>/dev/null; then
        echo "no disk of its own can be mounted here: nothing is tested"
        exit 0
    fi
    exec unshare --mount --map-root-user "$0"
fi
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

clean_up_with_disks() {
    umount -l "$work/run/data" "$work/disk" 2>/dev/null || true
    clean_up
}
trap clean_up_with_disks EXIT

# The lines under the canvas after a dot, which say the same of every dot where nothing is wrong.
hint_after_dot() {
    move "$(pixel_x "$1")" "$(pixel_y "$1")"
    shown xdotool click 1
    move 300 620
    settle
    move 310 620
    settle
    part=512x60+264+580 fingerprint
}
# Saves the set in a folder that has room, and ends.
save_and_quit() {
    echo "$work/elsewhere/$1.qdl" >"$work/answer"
    rm -f "$work/asked"
    xdotool key ctrl+s
    wait_until dialog_is_over || fail "nobody asked for a name"
    wait_for_file "$work/elsewhere/$1.qdl" 2315
    settle
    [ "$(pixels_of_dots "$1")" = 3 ] || fail "$1: a dot is missing"
    quit_editor
}
# How many white pixels the set has.
pixels_of_dots() { tail -c +12 "$work/elsewhere/$1.qdl" | od -An -tx1 -v -w4 | grep -c 'ff ff ff ff'; }
# It is told with the first dot, and not again.
draw_unprotected() {
    start_editor
    [ "$(hint_after_dot 3)" != "$usual" ] || fail "$1: nobody says that the work is not protected"
    take_picture "no_room_$1"
    [ "$(hint_after_dot 4)" = "$usual" ] || fail "$1: it is told again"
    [ "$(hint_after_dot 5)" = "$usual" ] || fail "$1: it is told again and again"
    save_and_quit "$1"
}
has_journal() { compgen -G "$work/run/data/journal/*.journal" >/dev/null; }

mkdir -p "$work/elsewhere" "$work/disk"
start_editor
usual=$(hint_after_dot 3)
[ "$(hint_after_dot 4)" = "$usual" ] || fail "the lines are not the same"
# Somebody removes the folder while the program runs: all is protected again from the next dot on.
rm -r "$work/run/data"
hint_after_dot 5 >/dev/null
wait_until has_journal || fail "there is no new journal"
save_and_quit vanished

mkdir -p "$work/run/data"
rm -rf "$work/run/data/"*
mount -t tmpfs -o size=1m tmpfs "$work/disk"
cp "$QUADRELLE_SOURCE_DIR/data/pool.bmp" "$work/disk/"
mount --bind "$work/disk" "$work/run/data"
dd if=/dev/zero of="$work/disk/full" bs=4096 2>/dev/null || true
draw_unprotected full

rm "$work/disk/full"
mount -o remount,bind,ro "$work/run/data"
draw_unprotected read_only
