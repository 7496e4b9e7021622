#pragma once

// What the palette's menu does with colours: in the palette, and in tiles by it.

namespace quadrelle {

struct Editor_Parts;

namespace palette_coloring {

// Puts colours between that of the left and that of the right button behind the entry of the left one, or
// behind the selected one. There is room for one.
void make_ramp(Editor_Parts& editor);
void sort_by_hue(Editor_Parts& editor);
void sort_by_lightness(Editor_Parts& editor);
// Of the colours in the set, the most used one first.
void sort_by_use(Editor_Parts& editor);

// Shows how many pixels have the left button's colour, and gives those that are chosen the right one's.
void replace_color(Editor_Parts& editor);
// Selects what is not in the palette.
void select_foreign(Editor_Parts& editor);
// What floats, is selected, or else the whole tile has only colours of the palette then, which has some.
void map_to_palette(Editor_Parts& editor);

} // namespace palette_coloring

} // namespace quadrelle
