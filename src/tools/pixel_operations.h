#pragma once

// What pens do to one colour. All keep the alpha of the pixel that they change.

#include "color/color.h"

namespace quadrelle {

[[nodiscard]] constexpr Color lightened_linear(Color pixel) {
    pixel.brighten(2.0);
    return pixel;
}

[[nodiscard]] constexpr Color darkened_linear(Color pixel) {
    pixel.darken(2.0);
    return pixel;
}

// Truncation makes these two deliberately unequal: a step up moves only green, a step down all three.
[[nodiscard]] constexpr Color lightened_perceptual(Color pixel) {
    pixel.brighten_weighted(3.0);
    return pixel;
}

[[nodiscard]] constexpr Color darkened_perceptual(Color pixel) {
    pixel.darken_weighted(3.0);
    return pixel;
}

// The pixel's brightness in the direction of the tool colour; toward black it is black.
[[nodiscard]] inline Color colorized_linear(Color pixel, Color tool_color) {
    pixel.match_direction(tool_color);
    return pixel;
}

// The pixel's value with the hue and saturation of the tool colour.
[[nodiscard]] inline Color colorized_luma(Color pixel, Color tool_color) {
    pixel.take_hue(tool_color);
    return pixel;
}

// Half of each, with the target's alpha.
[[nodiscard]] constexpr Color mixed_half_and_half(Color source, Color target) {
    source.average(target);
    return source;
}

} // namespace quadrelle
