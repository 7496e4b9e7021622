#!/usr/bin/env bash
# Killed at any moment, the program has every finished stroke at the next start: strokes are drawn fast, it is
# killed in the midst of them, and what was seen of them before has to be there again.
# QUADRELLE_KILL_ROUNDS says how often.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

strokes_a_round=60
finished_in_all=0
later_in_all=0

# For each stroke whether it is seen. One pixel of the picture for each of the tile.
strokes() {
    timeout 10 import -window "$editor_window" -crop 240x240+400+200 +repage pnm:- |
        convert pnm:- -sample 24x24 -depth 8 gray:- | od -An -v -tu1 -w1 -N "$strokes_a_round" |
        awk '{ printf "%d", ($1 > 250) }'
}
draw_strokes() {
    local steps=() i
    for ((i = 0; i < strokes_a_round; i++)); do
        steps+=(mousemove --window "$editor_window" "$(pixel_x $((i % 24)))" "$(pixel_y $((i / 24)))" click 1
            sleep "0.00$((RANDOM % 10))")
    done
    xdotool "${steps[@]}"
}
kill_editor() {
    kill -9 "$editor_pid"
    { wait "$editor_pid" || true; } 2>/dev/null
    editor_pid=""
}
journals() { find "$work/run/data/journal" -name '*.journal' 2>/dev/null | wc -l; }

# Every finished stroke must be there.
check_recovered() {
    local finished=$1 recovered i
    [ "$(journals)" -eq 1 ] || fail "there are $(journals) journals"
    start_editor
    part=$middle shown xdotool key Return
    move 300 620
    settle
    recovered=$(strokes)
    for ((i = 0; i < strokes_a_round; i++)); do
        [ "${finished:i:1}" -le "${recovered:i:1}" ] || fail "of $finished only $recovered are there"
    done
    later_in_all=$((later_in_all + $(count "$recovered") - $(count "$finished")))
}
count() { echo "${1//0/}" | awk '{ print length }'; }

for ((round = 1; round <= ${QUADRELLE_KILL_ROUNDS:-12}; round++)); do
    start_editor
    draw_strokes 2>/dev/null & # until its window is gone
    drawing=$!
    sleep "$((RANDOM % 2)).$((RANDOM % 10))$((RANDOM % 10))"
    if ((round % 3 == 0)); then
        # All that is drawn is finished.
        wait "$drawing"
        settle
        finished=$(strokes)
        kill_editor
    else
        finished=$(strokes)
        kill_editor
        wait "$drawing" || true
        # Only of the last stroke that is seen it is not known whether its button was up already.
        last=${finished##*1}
        finished=${finished%1"$last"}0$last
        finished=${finished:0:strokes_a_round}
    fi
    finished_in_all=$((finished_in_all + $(count "$finished")))
    if [ "$(count "$finished")" -eq 0 ]; then
        rm -rf "$work/run/data/journal" # which may have nothing to ask about
        continue
    fi
    check_recovered "$finished"
    if ((round % 4 == 0)); then
        # What was recovered is as safe as what is drawn.
        kill_editor
        check_recovered "$finished"
    fi
    quit_editor
    [ ! -e "$work/run/data/journal" ] || fail "something is left after an orderly end: $(ls "$work/run/data/journal")"
done
echo "$((round - 1)) rounds: $finished_in_all finished strokes, all recovered, and $later_in_all that came later"
