#pragma once

// What is made of the colours of a palette.

#include "color/color.h"

#include <span>
#include <vector>

namespace quadrelle {

// All that is fully transparent looks alike.
[[nodiscard]] constexpr Color as_seen(Color color) {
    return color.a == 0 ? Color(0, 0, 0, 0) : color;
}

enum class Ramp_Space { rgb, hsv };

// Returns so many colours in equal steps between both, which are not among them. Hues go the shorter way
// round, and a grey has the hue of the other one.
[[nodiscard]] std::vector<Color> colors_between(Color from, Color to, int count, Ramp_Space space);

// These keep the order of what is alike. Greys come before the hues, what is transparent before all.
[[nodiscard]] std::vector<Color> sorted_by_hue(std::vector<Color> colors);
[[nodiscard]] std::vector<Color> sorted_by_lightness(std::vector<Color> colors);
// By the place in the other list, as they are seen; those that are not there come last.
[[nodiscard]] std::vector<Color> sorted_as(std::vector<Color> colors, std::span<const Color> order);

// Whether the colour looks like one of these: what is fully transparent always does.
[[nodiscard]] bool is_among(std::span<const Color> colors, Color color);
// Returns the one that looks most like it, alpha taken in; there is one.
[[nodiscard]] Color nearest_of(std::span<const Color> colors, Color color);

} // namespace quadrelle
