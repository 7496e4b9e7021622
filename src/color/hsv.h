#pragma once

// A colour as hue, saturation and value.

#include "color/bounded_value.h"
#include "color/color.h"

namespace quadrelle {

struct HSV_Color {
    // It is in degrees, 0 to below 360 after `from_rgb`, and not a number when colour and reference are grey.
    double hue = 0.0;
    Bounded_Value saturation{0.0, 1.0};
    // It is on the scale of the channels and no fraction.
    Bounded_Value value{0.0, 255.0};

    HSV_Color() = default;
    HSV_Color(Color color, Color reference) { from_rgb(color, reference); }

    // The reference gives the hue when the colour is grey.
    void from_rgb(Color color, Color reference);
    // The result is opaque. A hue that is not a number or is outside 0 to 420 gives the grey of the value.
    [[nodiscard]] Color to_rgb() const;
    // Rounds each channel where `to_rgb` truncates: every colour comes back from this form as it was.
    [[nodiscard]] Color nearest_rgb() const;
};

// Keeps the colour's value and alpha and gives it the other's hue and saturation.
void take_hue(Color& color, Color other);

} // namespace quadrelle
