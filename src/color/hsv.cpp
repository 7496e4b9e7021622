#include "color/hsv.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quadrelle {

namespace {

// Red wins a tie over green, and green over blue.
double hue_of(Color color) {
    const int max = color.max_channel();
    const int delta = max - color.min_channel();
    if (delta == 0) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    double sixth = 0.0;
    if (color.r == max) {
        sixth = static_cast<double>(color.g - color.b) / delta;
    } else if (color.g == max) {
        sixth = 2.0 + static_cast<double>(color.b - color.r) / delta;
    } else {
        sixth = 4.0 + static_cast<double>(color.r - color.g) / delta;
    }
    const double hue = sixth * 60.0;
    return hue < 0.0 ? hue + 360.0 : hue;
}

} // namespace

void HSV_Color::from_rgb(Color color, Color reference) {
    const double max = color.max_channel();
    const double delta = max - color.min_channel();
    value = max;
    saturation = max > 0.0 ? delta / max : 0.0;
    hue = hue_of(saturation.value() <= 0.0 ? reference : color);
}

Color HSV_Color::to_rgb() const {
    const double v = value.value();
    const double s = saturation.value();
    const int top = value.channel();
    const Color grey(top, top, top);
    const double sixth = hue / 60.0;
    const bool is_on_the_wheel = sixth >= 0.0 && sixth < 7.0; // false for what is not a number
    if (s <= 0.0 || !is_on_the_wheel) {
        return grey;
    }
    const double fraction = sixth - std::floor(sixth);
    const int low = truncated_channel((1.0 - s) * v);
    const int falling = truncated_channel((1.0 - s * fraction) * v);
    const int rising = truncated_channel((1.0 - (1.0 - fraction) * s) * v);
    switch (static_cast<int>(sixth)) {
    case 0:
    case 6: return {top, rising, low};
    case 1: return {falling, top, low};
    case 2: return {low, top, rising};
    case 3: return {low, falling, top};
    case 4: return {rising, low, top};
    case 5: return {top, low, falling};
    default: return grey;
    }
}

Color HSV_Color::nearest_rgb() const {
    const double v = value.value();
    const double delta = std::isnan(hue) ? 0.0 : v * saturation.value();
    // A channel is at the top for a third of the wheel around its own hue, and `turn` sixths behind it.
    const auto channel = [&](double turn) {
        const double ahead = hue / 60.0 + turn;
        const double sixth = ahead < 6.0 ? ahead : ahead - 6.0;
        const double share = std::clamp(std::min(sixth, 4.0 - sixth), 0.0, 1.0);
        return truncated_channel(v - (delta > 0.0 ? delta * share : 0.0) + 0.5);
    };
    return {channel(5.0), channel(3.0), channel(1.0)};
}

void take_hue(Color& color, Color other) {
    HSV_Color mixed(other, other);
    mixed.value = HSV_Color(color, color).value;
    const Color result = mixed.to_rgb();
    color.set_rgb(result.r, result.g, result.b);
}

} // namespace quadrelle
