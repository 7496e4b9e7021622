#pragma once

// A colour as hue, saturation and lightness.

#include "color/bounded_value.h"
#include "color/color.h"

namespace quadrelle {

// Going to this form and back deliberately changes most colours: the saturation is measured at the average
// of the three channels, while the way back assumes the middle of the largest and the smallest.
struct HSL_Color {
    // It is in degrees, 0 to below 360 after `from_rgb`.
    double hue = 0.0;
    Bounded_Value saturation{0.0, 1.0};
    Bounded_Value lightness{0.0, 1.0};

    HSL_Color() = default;
    HSL_Color(Color color, Color reference) { from_rgb(color, reference); }

    // For a grey colour the reference gives the hue and the lightness.
    void from_rgb(Color color, Color reference);
    // The result is opaque, each channel rounded to the nearest number.
    [[nodiscard]] Color to_rgb() const;
};

} // namespace quadrelle
