#pragma once

// What transparent colours are shown on.

#include "app/geometry.h"
#include "color/color.h"

namespace quadrelle {

void draw_checkerboard(const Rectangle& area);
// The colour over squares that show through as far as it is transparent.
void draw_swatch(const Rectangle& area, Color color);

} // namespace quadrelle
