#pragma once

// The checkerboard that shows through translucent pixels in real size.

#include "color/standard_colors.h"

namespace quadrelle {

// Of the pixel that many window pixels right of and below the corner of the board.
[[nodiscard]] constexpr Color checkerboard_color(int x, int y) {
    constexpr int square = 6;
    const bool is_light = (x / square + y / square) % 2 != 0;
    return standard_color(is_light ? Standard_Color::checker_light : Standard_Color::checker_dark);
}

} // namespace quadrelle
