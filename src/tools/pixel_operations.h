#pragma once

// What pens do to one colour. All keep the alpha of the pixel that they change.

#include "color/color.h"
#include "color/hsv.h"

#include <cstdint>

namespace quadrelle {

enum class Lightness_Mode : std::int32_t { linear, perception };
enum class Colorize_Type : std::int32_t { linear, luma };

// Lightens by so many touches of the lightness pen; a negative number darkens. In the mode of perception
// truncation makes the two deliberately unequal: a step up moves only green, a step down all three.
[[nodiscard]] constexpr Color lightened(Color pixel, Lightness_Mode mode, double touches) {
    constexpr double linear_step = 2.0;
    constexpr double perceptual_step = 3.0;
    if (mode == Lightness_Mode::linear) {
        pixel.brighten(touches * linear_step);
    } else {
        pixel.brighten_weighted(touches * perceptual_step);
    }
    return pixel;
}

// Gives the pixel the direction of the tool colour, toward black that is black, or its hue and saturation.
[[nodiscard]] inline Color colorized(Color pixel, Color tool_color, Colorize_Type type) {
    if (type == Colorize_Type::linear) {
        pixel.match_direction(tool_color);
    } else {
        take_hue(pixel, tool_color);
    }
    return pixel;
}

// Returns half of each, with the target's alpha.
[[nodiscard]] constexpr Color mixed_half_and_half(Color source, Color target) {
    source.average(target);
    return source;
}

} // namespace quadrelle
