#pragma once

// The squares that show through translucent pixels, and how they show.

#include "base/geometry.h"
#include "color/standard_colors.h"

namespace quadrelle {

// Returns the colour of the pixel that lies x right of and y below the corner of the board.
[[nodiscard]] constexpr Color checkerboard_color(int x, int y, Size square = {6, 6}) {
    const bool is_light = (x / square.width + y / square.height) % 2 != 0;
    return standard_color(is_light ? Standard_Color::checker_light : Standard_Color::checker_dark);
}

// Returns what shows when the colour is laid over the background, as the screen blends.
[[nodiscard]] constexpr Color blended_over(Color color, Color background) {
    if (color.a == 255) {
        return color;
    }
    const int rest = 255 - color.a;
    return {color.r * color.a / 255 + background.r * rest / 255,
            color.g * color.a / 255 + background.g * rest / 255,
            color.b * color.a / 255 + background.b * rest / 255};
}

} // namespace quadrelle
