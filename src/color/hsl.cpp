#include "color/hsl.h"

#include <cmath>

namespace quadrelle {

namespace {

// The average of all three channels, not the lightness, is the measure here on purpose.
double saturation_of(Color color) {
    if (color.is_grey()) {
        return 0.0;
    }
    const double range = color.max_channel() / 255.0 - color.min_channel() / 255.0;
    const double average = (color.r / 255.0 + color.g / 255.0 + color.b / 255.0) / 3.0;
    return range / (average <= 0.5 ? 2.0 * average : 2.0 - 2.0 * average);
}

double hue_of(Color color) {
    const double r = color.r / 255.0;
    const double g = color.g / 255.0;
    const double b = color.b / 255.0;
    const int max = color.max_channel();
    const double scale = color.is_grey() ? 0.0 : 60.0 / (max / 255.0 - color.min_channel() / 255.0);
    if (color.r == max) {
        const double hue = 360.0 + (g - b) * scale;
        return hue >= 360.0 ? hue - 360.0 : hue;
    }
    return color.g == max ? 120.0 + (b - r) * scale : 240.0 + (r - g) * scale;
}

// One channel of the way back; `low` and `high` are its bounds, `turn` its place on the wheel in turns.
double channel_at(double turn, double low, double high) {
    if (turn < 0.0) {
        turn += 1.0;
    } else if (turn > 1.0) {
        turn -= 1.0;
    }
    if (turn < 1.0 / 6.0) {
        return low + (high - low) * 6.0 * turn;
    }
    if (turn < 0.5) {
        return high;
    }
    return turn < 2.0 / 3.0 ? low + (high - low) * (2.0 / 3.0 - turn) * 6.0 : low;
}

int rounded_channel(double fraction) {
    return truncated_channel(std::round(fraction * 255.0));
}

} // namespace

void HSL_Color::from_rgb(Color color, Color reference) {
    const Color source = color.is_grey() ? reference : color;
    saturation = saturation_of(color);
    lightness = (source.max_channel() / 255.0 + source.min_channel() / 255.0) / 2.0;
    hue = hue_of(source);
}

Color HSL_Color::to_rgb() const {
    const double s = saturation.value();
    const double l = lightness.value();
    const double high = l < 0.5 ? l * (1.0 + s) : l + s - l * s;
    const double low = 2.0 * l - high;
    const double turn = hue / 360.0;
    return {rounded_channel(channel_at(turn + 1.0 / 3.0, low, high)),
            rounded_channel(channel_at(turn, low, high)),
            rounded_channel(channel_at(turn - 1.0 / 3.0, low, high))};
}

} // namespace quadrelle
