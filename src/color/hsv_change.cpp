#include "color/hsv_change.h"

#include "color/hsv.h"

#include <cstdlib>

namespace quadrelle {

namespace {

constexpr double full_turn = 360.0;
constexpr double full_value = 255.0;

double turned(double hue, int degrees) {
    const double sum = hue + degrees;
    if (sum < 0.0) {
        return sum + full_turn;
    }
    return sum < full_turn ? sum : sum - full_turn;
}

} // namespace

Color adjusted(Color color, const HSV_Change& change) {
    if (color.a == 0) {
        return color;
    }
    // A grey has no hue of its own, and without saturation none is needed.
    HSV_Color hsv(color, color);
    hsv.hue = turned(hsv.hue, change.hue);
    hsv.saturation = hsv.saturation.value() * (1.0 + change.saturation / 100.0);
    const double goal = change.value < 0 ? -hsv.value.value() : full_value - hsv.value.value();
    hsv.value += goal * std::abs(change.value) / 100.0;
    const Color result = hsv.nearest_rgb();
    return {result.r, result.g, result.b, color.a};
}

} // namespace quadrelle
