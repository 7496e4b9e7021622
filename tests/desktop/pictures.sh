#!/usr/bin/env bash
# A picture of another program is dropped on the window and becomes a set. The set is exported with gaps, extruded
# edges and a tileset file: a program that draws maps with these sees the same pixels.
set -euo pipefail
# shellcheck source=tests/desktop/common.sh
. "$QUADRELLE_SOURCE_DIR/tests/desktop/common.sh"

# The dialogs, which neither menus nor the pointer's marks cover.
dialog=500x260+366+100

# Fails unless the two pictures have the same pixels.
expect_same() { [ "$(compare -metric AE "$1" "$2" null: 2>&1)" = 0 ] || fail "$1 shows other pixels than $2"; }

# Six tiles of 16 x 16 with gaps, the second one empty: interlaced and with a palette.
for color in red lime blue yellow white; do
    convert -size 16x16 "gradient:$color-black" "$work/$color.png"
done
convert -size 16x16 xc:none "$work/none.png"
montage "$work"/{red,none,lime,blue,yellow,white}.png -background none -tile 3x2 -geometry 16x16+1+1 \
    -interlace PNG "PNG8:$work/sheet ü.png"

start_editor
part=$dialog shown "$QUADRELLE_DROP_FILES" "$editor_window" "file://$work/sheet%20%C3%BC.png"
take_picture from_picture
shown xdotool key Return
wait_for_title untitled1.qdl*

echo "$work/out.bmp" >"$work/answer"
shown click 20 12
part=$dialog shown click 40 188 # Export as .bmp
part=$dialog shown click 484 602 # As .png...
for height in 504 504 527 550; do click 365 "$height"; done # spacing 2, edges 1, scale 2
click 343 573 # the tileset file
take_picture export_png
xdotool key Return
wait_until test -s "$work/out.tsx" || fail "there is no tileset file"
settle

cat >"$work/map.tmx" <<TEXT
<?xml version="1.0" encoding="UTF-8"?>
<map version="1.8" orientation="orthogonal" width="5" height="1" tilewidth="32" tileheight="32" infinite="0">
 <tileset firstgid="1" source="out.tsx"/>
 <layer id="1" name="row" width="5" height="1"><data encoding="csv">1,2,3,4,5</data></layer>
</map>
TEXT
QT_QPA_PLATFORM=offscreen timeout 30 tmxrasterizer "$work/map.tmx" "$work/map.png" || fail "no map was drawn"
convert "$work"/{red,lime,blue,yellow,white}.png +append -scale 200% "$work/row.png"
expect_same "$work/map.png" "$work/row.png"
# The edges of the first tile, once more around it.
convert "$work/out.png" -crop 36x36+0+0 +repage "$work/first.png"
convert "$work/red.png" -define distort:viewport=18x18-1-1 -virtual-pixel edge -filter point -distort SRT 0 +repage \
    -scale 200% "$work/extruded.png"
expect_same "$work/first.png" "$work/extruded.png"

# Again, without a dialog: what was drawn since is in it.
before=$(cksum <"$work/out.png")
shown drag 420 260 480 260
xdotool key ctrl+e
is_exported_anew() { [ "$(cksum <"$work/out.png")" != "$before" ]; }
wait_until is_exported_anew || fail "it was not exported again"

# A colour of the tile is stored in a palette, which then is one of its own: it is there at the next start.
click 60 542 # the second entry of the fourth row
xdotool keydown alt
click 560 290
xdotool keyup alt
shown click 110 619
# Its name and colours, with that entry selected.
sum_of_palette() {
    click 60 542
    move 1200 400
    settle
    part=200x104+34+452 fingerprint
}
kept=$(sum_of_palette)
take_picture palette_kept
quit_editor
grep -q "^Name: Default 2" "$work/run/data/palettes/Default 2.gpl" || fail "the palette has no file"
start_editor
found=$(sum_of_palette)
take_picture palette_found
[ "$found" = "$kept" ] || fail "the palette is not as it was left"

# A bitmap, a palette and a set can be dropped as well.
convert "$work/blue.png" "BMP3:$work/blue.bmp"
part=$dialog shown "$QUADRELLE_DROP_FILES" "$editor_window" "file://$work/blue.bmp"
shown xdotool key Return
wait_for_title untitled1.qdl*
printf 'GIMP Palette\n1 2 3\n' >"$work/sun.gpl"
"$QUADRELLE_DROP_FILES" "$editor_window" "file://$work/sun.gpl"
wait_until test -s "$work/run/data/palettes/sun.gpl" || fail "the palette was not kept"
printf 'QDL\n\0\1\1\1\0\0\0\377\0\0\377' >"$work/one.qdl"
"$QUADRELLE_DROP_FILES" "$editor_window" "file://$work/one.qdl"
wait_for_title "$work/one.qdl"
quit_editor
echo "passed"
