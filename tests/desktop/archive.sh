#!/usr/bin/env bash
# What people download for Linux, unpacked and started: in a folder that can be written to the program stays there,
# elsewhere it runs in a folder of the user's own; and installed for an account. What ended it is shown.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"
archive=$(echo "$QUADRELLE_SOURCE_DIR"/build/packages/quadrelle-*-linux-x86_64.tar.gz)
if [ ! -e "$archive" ]; then
    echo "skipped: scripts/package has made no archive"
    exit 77
fi

export HOME=$work/home
unset XDG_DATA_HOME
mkdir "$HOME"
own=$HOME/.local/share/quadrelle
# shellcheck disable=SC2034 # for start_editor: a desktop starts a program anywhere
run_folder=/
unpack() {
    mkdir "$work/$1"
    tar -xzf "$archive" -C "$work/$1"
    tree=$(echo "$work/$1"/*)
}
# Fails unless the program writes to that data folder: a save does, as it keeps the history there.
draw_and_save() {
    local saved=$HOME/saved.qdl
    rm -f "$saved" "$work/asked"
    start_editor
    shown drag "$(pixel_x 2)" "$(pixel_y 3)" "$(pixel_x 9)" "$(pixel_y 3)"
    echo "$saved" >"$work/answer"
    xdotool key ctrl+s
    wait_for_file "$saved" $((11 + 24 * 24 * 4))
    wait_for_title "$saved"
    take_picture "archive_$1"
    quit_editor
    [ -e "$2/history" ] || fail "$1: the program does not run in $2"
}

for name in empty "Größe 漢字"; do
    unpack "$name"
    QUADRELLE_PROGRAM=$tree/quadrelle
    draw_and_save "${name%% *}" "$tree/data"
    [ ! -e "$own" ] || fail "there is a folder of the user's own besides"
done

mkdir "$work/deb"
dpkg-deb -x "$(echo "$QUADRELLE_SOURCE_DIR"/build/packages/quadrelle_*_amd64.deb)" "$work/deb"
QUADRELLE_PROGRAM=$work/deb/usr/bin/quadrelle
draw_and_save deb "$work/deb/usr/lib/quadrelle/data"

in_new_home() { env HOME="$work/new home" "$@"; }
in_new_home sh "$work"/empty/*/install.sh >"$work/output"
QUADRELLE_PROGRAM="$work/new home/.local/bin/quadrelle"
draw_and_save installed "$work/new home/.local/share/quadrelle/data"
share="$work/new home/.local/share"
grep -q "^Exec=\"$share/quadrelle/quadrelle\"$" "$share/applications/quadrelle.desktop" ||
    fail "the menu starts something else"
desktop-file-validate "$share/applications/quadrelle.desktop"
grep -qF 'application/x-quadrelle:*.qdl' "$share/mime/globs2" || fail "the system does not know the files"
in_new_home "$share/quadrelle/install.sh" remove >"$work/output"
left=$(cd "$work/new home" && find . -type f -path '*quadrelle*' ! -path '*/mime/*' ! -path '*/history/*')
[ -z "$left" ] || fail "this stays where it was installed: $left"

# A user who cannot write there. The superuser can everywhere, and becomes another one.
unpack shared
chmod -R a-w "$tree"
as_user=()
if [ "$(id -u)" -eq 0 ]; then
    as_user=(setpriv --reuid=65534 --clear-groups)
    chmod 777 "$work" "$HOME"
    cp "$XAUTHORITY" "$work/authority"
    chmod 644 "$work/authority"
    export XAUTHORITY=$work/authority
fi
printf '#!/bin/sh\nexec %s "%s"\n' "${as_user[*]}" "$tree/quadrelle" >"$work/bin/editor"
chmod +x "$work/bin/editor"
QUADRELLE_PROGRAM=$work/bin/editor
# What an older version brought, and what is the user's.
"${as_user[@]}" mkdir -p "$own/data/palettes"
# shellcheck disable=SC2016 # for the other shell
"${as_user[@]}" sh -c 'echo old >"$1/pool.bmp"; echo "mine" >"$1/palettes/mine.txt"' sh "$own/data"
draw_and_save unwritable "$own/data"
cmp "$own/data/pool.bmp" "$tree/data/pool.bmp" || fail "the folder of the user's own is not brought up to date"
[ "$(cat "$own/data/palettes/mine.txt")" = mine ] || fail "a file of the user's has changed"
[ -z "$(find "$tree" -newer "$work/bin/editor")" ] || fail "the folder that cannot be written to was written to"

printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s"\n' "$work/shown" >"$work/bin/zenity"
rm -f "$own/data/palette.dat"
printf '\40\0\0\0001,2,' >"$own/data/palette.dat"
status=0
(cd / && PATH=$work/bin:$PATH SDL_VIDEO_DRIVER=x11 timeout -s KILL 20 "$QUADRELLE_PROGRAM") >"$work/output" 2>&1 || status=$?
[ $status -eq 1 ] || fail "exit status $status of a start that cannot be"
grep -q "$own/data/palette.dat" "$work/shown" || fail "nobody is told which file is at fault"
echo "passed"
