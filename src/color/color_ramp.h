#pragma once

// Series of colours around one, from low to high. Draws nothing.

#include "color/color.h"

#include <array>

namespace quadrelle {

constexpr int ramp_size = 12;

struct Color_Ramp {
    std::array<Color, ramp_size> colors;
    // The place of the colour that the ramp was made around; it stands there exactly.
    int own = 0;
};

enum class Ramp_Kind {
    lightness,   // through shades to tints, never quite black or white
    saturation,  // from grey on
    hue,         // once around the wheel
    cool_to_warm // darker ones turn to blue, lighter ones to yellow
};
constexpr int ramp_kind_count = 4;

// All colours have the alpha of `color`. The reference gives the hue where the colour is grey.
[[nodiscard]] Color_Ramp make_ramp(Ramp_Kind kind, Color color, Color reference);

} // namespace quadrelle
