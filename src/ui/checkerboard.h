#pragma once

// The checkerboard that shows through translucent pixels in real size.

#include "app/geometry.h"
#include "color/standard_colors.h"

namespace quadrelle {

// Of the pixel that many window pixels right of and below the corner of the board.
[[nodiscard]] constexpr Color checkerboard_color(int x, int y) {
    constexpr int square = 6;
    const bool is_light = (x / square + y / square) % 2 != 0;
    return standard_color(is_light ? Standard_Color::checker_light : Standard_Color::checker_dark);
}

void draw_checkerboard(const Rectangle& area);
// The colour over squares that show through as far as it is transparent.
void draw_swatch(const Rectangle& area, Color color);

} // namespace quadrelle
