#pragma once

// What pens do to one colour. All keep the alpha of the pixel that they change.

#include "color/color.h"

namespace quadrelle {

// How far one touch of the lightness pen goes, of 255.
constexpr double linear_step = 2.0;
constexpr double perceptual_step = 3.0;

[[nodiscard]] constexpr Color lightened_linear(Color pixel) {
    pixel.brighten(linear_step);
    return pixel;
}

[[nodiscard]] constexpr Color darkened_linear(Color pixel) {
    pixel.darken(linear_step);
    return pixel;
}

// Truncation makes these two deliberately unequal: a step up moves only green, a step down all three.
[[nodiscard]] constexpr Color lightened_perceptual(Color pixel) {
    pixel.brighten_weighted(perceptual_step);
    return pixel;
}

[[nodiscard]] constexpr Color darkened_perceptual(Color pixel) {
    pixel.darken_weighted(perceptual_step);
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
