# Drives the real program on an X server. Sourced by the desktop tests and by the script that takes the pictures of
# the documentation. Wants QUADRELLE_PROGRAM and QUADRELLE_SOURCE_DIR.
# shellcheck shell=bash

# The program runs in a folder of its own, so that its data files are not those of the checkout.
work=$(mktemp -d)
editor_pid=""
clean_up() {
    [ -z "$editor_pid" ] || kill "$editor_pid" 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT
mkdir -p "$work/run" "$work/bin"
mkdir "$work/run/data"
cp "$QUADRELLE_SOURCE_DIR/data/pool.bmp" "$work/run/data/"

# Stands in for the system's file dialog: answers with the path in the file "answer", or as if cancelled.
cat >"$work/bin/zenity" <<TEXT
#!/bin/sh
case "\$*" in *--version*) echo 3.44; exit 0 ;; esac
[ -s "$work/answer" ] || exit 1
cat "$work/answer"
TEXT
chmod +x "$work/bin/zenity"

# Where the centre of a tile pixel lies in the window: a tile of 24 x 24 at ten window pixels each, centred.
pixel_x() { echo $((400 + 10 * $1 + 5)); }
pixel_y() { echo $((200 + 10 * $1 + 5)); }

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

start_editor() {
    (cd "$work/run" && exec env -u DBUS_SESSION_BUS_ADDRESS -u SDL_RENDER_DRIVER PATH="$work/bin:$PATH" \
        SDL_VIDEO_DRIVER=x11 "$QUADRELLE_PROGRAM") >"$work/output" 2>&1 &
    editor_pid=$!
    editor_window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Quadrelle') ||
        fail "no window: $(cat "$work/output")"
    pause
}

# Long enough for an event to be answered on a busy machine.
pause() { sleep "${1:-0.3}"; }

move() { xdotool mousemove --window "$editor_window" "$1" "$2"; }
click() {
    move "$1" "$2"
    xdotool click "${3:-1}"
    pause
}
press_key() {
    xdotool key "$@"
    pause
}
drag() {
    local x1=$1 y1=$2 x2=$3 y2=$4 steps=8 i
    move "$x1" "$y1"
    xdotool mousedown "${5:-1}"
    for ((i = 1; i <= steps; i++)); do
        move $((x1 + (x2 - x1) * i / steps)) $((y1 + (y2 - y1) * i / steps))
    done
    xdotool mouseup "${5:-1}"
    pause
}
picture() { import -window "$editor_window" "$1"; }
title() { xdotool getwindowname "$editor_window"; }

is_running() { kill -0 "$editor_pid" 2>/dev/null; }

# Escape asks, Return confirms.
quit_editor() {
    press_key Escape
    press_key Return
    local i
    for ((i = 0; i < 50; i++)); do
        is_running || break
        sleep 0.1
    done
    ! is_running || fail "the program did not end"
    local status=0
    wait "$editor_pid" || status=$?
    editor_pid=""
    [ "$status" -eq 0 ] || fail "exit status $status: $(cat "$work/output")"
}
