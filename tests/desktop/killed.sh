#!/usr/bin/env bash
# Killed at any moment, the program has every finished stroke at the next start: strokes are drawn fast, it is
# killed in the midst of them, and what was seen of them before has to be there again.
# QUADRELLE_KILL_ROUNDS says how often.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

strokes_a_round=60
shown_in_all=0
unseen_in_all=0

# The strokes that are seen, of those that follow each other row by row: how many until the first that is missing,
# and how many altogether. One pixel of the picture for each of the tile.
count_strokes() {
    timeout 10 import -window "$editor_window" -crop 240x240+400+200 +repage pnm:- |
        convert pnm:- -sample 24x24 -depth 8 gray:- | od -An -v -tu1 -w1 | awk -v most=$strokes_a_round '
            NR <= most { if ($1 > 250) { all++; if (!gap) run++ } else gap = 1 }
            END { print run + 0, all + 0 }'
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

# Only of the last stroke that is seen it is not known whether its button is up already.
check_recovered() {
    local finished=$1 run all
    [ "$(journals)" -eq 1 ] || fail "there are $(journals) journals"
    start_editor
    part=$middle shown xdotool key Return
    move 300 620
    settle
    read -r run all < <(count_strokes)
    [ "$run" -eq "$all" ] || fail "of $all strokes only the first $run have none missing between them"
    [ "$run" -ge "$finished" ] || fail "$finished strokes were finished, $run are there"
    unseen_in_all=$((unseen_in_all + run - finished))
}

for ((round = 1; round <= ${QUADRELLE_KILL_ROUNDS:-12}; round++)); do
    start_editor
    draw_strokes 2>/dev/null & # until its window is gone
    drawing=$!
    sleep "0.$((RANDOM % 9))$((RANDOM % 10))"
    if ((round % 3 == 0)); then
        # All that is drawn is finished.
        wait "$drawing"
        settle
        kill_editor
        finished=$strokes_a_round
    else
        read -r run _ < <(count_strokes)
        kill_editor
        kill "$drawing" 2>/dev/null || true
        wait "$drawing" 2>/dev/null || true
        finished=$((run > 0 ? run - 1 : 0))
    fi
    shown_in_all=$((shown_in_all + finished))
    if [ "$(journals)" -eq 0 ] && [ "$finished" -eq 0 ]; then
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
echo "$((round - 1)) rounds: $shown_in_all finished strokes, all recovered, and $unseen_in_all that came later"
