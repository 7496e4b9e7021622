#pragma once

// One and the same change of hue, saturation and value, for any colour.

#include "color/color.h"

namespace quadrelle {

constexpr int most_hue_change = 180;
constexpr int most_percent_change = 100;

struct HSV_Change {
    int hue = 0;        // degrees, -180 to 180
    int saturation = 0; // in per cent of what the colour has: -100 makes greys, 100 doubles
    int value = 0;      // -100 to 100, per cent of the way to black or to the fullest value

    bool operator==(const HSV_Change&) const = default;
};

// Greys stay grey and alpha stays as it is. What cannot be seen, with alpha 0, is left alone.
[[nodiscard]] Color adjusted(Color color, const HSV_Change& change);

} // namespace quadrelle
