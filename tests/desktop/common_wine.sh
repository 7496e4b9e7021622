# Starts Windows programs, for the desktop tests; comes after common.sh.
# shellcheck shell=bash

wine=/usr/lib/wine/wine64
system=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows
skip() {
    echo "skipped: $*"
    exit 77
}
if [ ! -x "$wine" ] || [ ! -d "$system" ]; then skip "there is no wine64"; fi

# A C drive whose system folder is that of wine itself: to have it copied there takes most of a minute.
# shellcheck disable=SC2154 # of common.sh
export WINEPREFIX=$work/wine WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
mkdir -p "$WINEPREFIX/dosdevices" "$WINEPREFIX/drive_c/windows/system32" "$WINEPREFIX/drive_c/windows/temp"
ln -s ../drive_c "$WINEPREFIX/dosdevices/c:"
ln -s / "$WINEPREFIX/dosdevices/z:"
ln -s "$system"/* "$WINEPREFIX/drive_c/windows/system32/"
echo disable >"$WINEPREFIX/.update-timestamp"
cat >"$WINEPREFIX/user.reg" <<'TEXT'
WINE REGISTRY Version 2

[Environment] 1
"TEMP"="C:\\windows\\temp"
TEXT
end_wine() {
    /usr/lib/wine/wineserver64 -k || true
    clean_up
}
trap end_wine EXIT
"$wine" regsvr32 /s shell32.dll # the file dialogs look there for folders

# The path of a file as Windows names it.
windows_path() { echo "Z:${1//\//\\}"; }

# Makes the command that starts a Windows program in the folder "run".
wine_command() {
    printf '#!/bin/sh\nexec env -u SDL_VIDEO_DRIVER "%s" "%s"\n' "$wine" "$(windows_path "$1")" >"$work/bin/editor"
    chmod +x "$work/bin/editor"
    echo "$work/bin/editor"
}

# shellcheck disable=SC2034 # what is moved over and settles is the dialog
# Types a name into the system's file dialog with that title. It begins in the folder in which the program runs, whose
# letters need not be typed: not every letter has a key.
answer_system_dialog() {
    local editor_window
    editor_window=$(timeout 20 xdotool search --sync --onlyvisible --name "^$1") || fail "there is no dialog $1"
    move 300 100 # without a window manager the keys go to what is under the pointer
    settle
    xdotool type "$2"
    [ -z "${PICTURES:-}" ] || import -window root "$PICTURES/$3.png"
    xdotool key Return
}
