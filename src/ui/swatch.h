#pragma once

// A colour shown as an area, and the marks that show beside every colour.

#include "base/geometry.h"
#include "color/color.h"

namespace quadrelle {

// Draws the colour over a checkerboard that shows through as far as the colour is transparent.
void draw_swatch(const Rectangle& area, Color color);
// Draws a light outline within a dark one.
void draw_mark(const Rectangle& area);
// Draws the mark in the cell, or around a small one.
void draw_cell_mark(const Rectangle& cell);

constexpr int picture_mark_width = 3;
// Draws a mark around the picture, light around dark.
void draw_mark_around(const Rectangle& picture);

} // namespace quadrelle
