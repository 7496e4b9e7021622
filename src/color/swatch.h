#pragma once

// How the colour panes show a colour, and which of several is the chosen one.

#include "app/geometry.h"
#include "color/color.h"

namespace quadrelle {

// Four squares behind a translucent colour show how much of it is opaque.
void draw_swatch(const Rectangle& area, Color color);
// An outline that shows on every colour: a light line inside of a dark one.
void draw_mark(const Rectangle& area);
// The mark of a chosen cell, around it where the cell is too small to hold it.
void draw_cell_mark(const Rectangle& cell);

} // namespace quadrelle
