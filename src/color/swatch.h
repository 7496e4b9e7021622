#pragma once

// How the colour panes show which of several colours is the chosen one.

#include "app/geometry.h"

namespace quadrelle {

// An outline that shows on every colour: a light line inside of a dark one.
void draw_mark(const Rectangle& area);
// The mark of a chosen cell, around it where the cell is too small to hold it.
void draw_cell_mark(const Rectangle& cell);

} // namespace quadrelle
