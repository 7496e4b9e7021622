#pragma once

// A colour shown as an area, and the marks that show beside every colour.

#include "base/geometry.h"
#include "color/color.h"

namespace quadrelle {

// The colour over a checkerboard that shows through as far as it is transparent.
void draw_swatch(const Rectangle& area, Color color);
// A light outline within a dark one.
void draw_mark(const Rectangle& area);
// On a small cell it lies around it.
void draw_cell_mark(const Rectangle& cell);

constexpr int picture_mark_width = 3;
// Lies around the picture, light around dark.
void draw_mark_around(const Rectangle& picture);

} // namespace quadrelle
