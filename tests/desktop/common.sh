# Drives the real program on an X server, for the desktop tests and the script that takes the documentation's pictures.
# Wants QUADRELLE_PROGRAM and QUADRELLE_SOURCE_DIR; a test leaves pictures in the folder PICTURES.
# shellcheck shell=bash

# The program runs in a folder of its own, so that its data files are not those of the checkout.
work=$(mktemp -d)
editor_pid=""
clean_up() {
    [ -z "$editor_pid" ] || kill "$editor_pid" 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT
mkdir -p "$work/run/data" "$work/bin"
cp "$QUADRELLE_SOURCE_DIR/data/pool.bmp" "$work/run/data/"

# Stands in for the system's file dialog: answers with the path in the file "answer", or as if cancelled.
cat >"$work/bin/zenity" <<TEXT
#!/bin/sh
case "\$*" in *--version*) echo 3.44; exit 0 ;; esac
echo asked >>"$work/asked"
[ -s "$work/answer" ] || exit 1
cat "$work/answer"
TEXT
chmod +x "$work/bin/zenity"

# Events are dropped while the dialog is open: its process must be gone before the next one is sent.
dialog_is_over() { [ -s "$work/asked" ] && ! pgrep -P "$editor_pid" >"$work/children"; }

# Where the centre of a tile pixel lies in the window: a tile of 24 x 24 at ten window pixels each, centred.
pixel_x() { echo $((400 + 10 * $1 + 5)); }
pixel_y() { echo $((200 + 10 * $1 + 5)); }
fail() {
    echo "FAILED: $*" >&2
    is_running && take_picture failure || echo "the program's output: $(cat "$work/output")" >&2
    exit 1
}

start_editor() {
    (cd "${run_folder:-$work/run}" && exec env -u DBUS_SESSION_BUS_ADDRESS PATH="${program_path:-$work/bin:$PATH}" \
        SDL_VIDEO_DRIVER=x11 "$QUADRELLE_PROGRAM") >"$work/output" 2>&1 &
    editor_pid=$!
    editor_window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Quadrelle') || fail "there is no window"
    settle
}

picture() { timeout 10 import -window "$editor_window" "$1"; }
take_picture() { [ -z "${PICTURES:-}" ] || picture "$PICTURES/$1.png"; }
title() { xdotool getwindowname "$editor_window"; }
is_running() { kill -0 "$editor_pid" 2>/dev/null; }
has_ended() { ! is_running; }

# Waits until the command given succeeds; the limit is generous, for a busy machine.
wait_until() {
    local end=$((SECONDS + 15))
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.05
    done
}
has_title() { [ "$(title)" = "Quadrelle 0.90 - $1" ]; }
wait_for_title() { wait_until has_title "$1" || fail "the title is $(title), not $1"; }
has_size() { [ "$(stat -c %s "$1" 2>/dev/null)" = "$2" ]; }
wait_for_file() { wait_until has_size "$1" "$2" || fail "$1 has no size of $2"; }

# The sum of the picture, or of its part WIDTHxHEIGHT+X+Y if "part" names one.
fingerprint() { timeout 10 import -window "$editor_window" ${part:+-crop "$part"} pnm:- | cksum; }
# Menus do not reach the middle of the window, where the dialogs open.
middle=180x140+526+262

# The picture is the same in two samples, and differs from that of the sum given.
is_still() {
    local sum
    sum=$(fingerprint) && [ "$sum" != "${1:-}" ] && sleep 0.1 && [ "$sum" = "$(fingerprint)" ]
}
settle() { wait_until is_still || fail "the picture does not come to rest"; }
# Does what must show in the window, or in its part, and waits until it does.
shown() {
    local before
    before=$(fingerprint) || fail "there is no picture before: $*"
    "$@"
    wait_until is_still "$before" || fail "nothing was seen of: $*"
}

# In a window that shows all of it "zoom" times as large, and beside a margin.
move() {
    xdotool mousemove --window "$editor_window" $(($1 * ${zoom:-1} + ${margin_x:-0})) $(($2 * ${zoom:-1} + ${margin_y:-0}))
}
click() {
    move "$1" "$2"
    settle
    xdotool click "${3:-1}"
    settle
}
press_key() {
    xdotool key "$@"
    settle
}
drag() {
    local x1=$1 y1=$2 x2=$3 y2=$4 steps=8 i
    move "$x1" "$y1"
    xdotool mousedown "${5:-1}"
    for ((i = 1; i <= steps; i++)); do
        move $((x1 + (x2 - x1) * i / steps)) $((y1 + (y2 - y1) * i / steps))
    done
    xdotool mouseup "${5:-1}"
    settle
}

# The pixels of a picture, each as eight digits on a line of its own: red, green, blue, alpha.
pixels_of() { convert "$1" -depth 8 rgba:- | od -An -tx1 -v -w4 | tr -d ' '; }
# The pixels of a picture are those on the lines of a file.
expect_pixels() {
    pixels_of "$1" >"$work/seen"
    cmp "$work/seen" "$2" || fail "another program sees other pixels in $1"
}

ask_to_quit() { part=$middle shown xdotool key Escape; }
confirm_quit() {
    xdotool key Return
    wait_until has_ended || fail "the program did not end"
    local status=0
    wait "$editor_pid" || status=$?
    editor_pid=""
    [ "$status" -eq 0 ] || fail "exit status $status: $(cat "$work/output")"
}
quit_editor() {
    ask_to_quit
    confirm_quit
}
