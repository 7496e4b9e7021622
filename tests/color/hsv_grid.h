#pragma once

// Colours to go through, and the textbook way from hue, saturation and value to a colour.

#include "color/color.h"
#include "color/hsv.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quadrelle::testing {

// 26 x 26 x 26, and 3 more of each channel for the ends and their neighbours.
template <typename Action>
void for_many_colors(Action action) {
    constexpr auto channel = [](int i) { return i < 26 ? 10 * i : std::array{1, 254, 255}.at(i - 26); };
    for (int i = 0; i < 29 * 29 * 29; ++i) {
        action(Color(channel(i / 29 / 29), channel(i / 29 % 29), channel(i % 29)));
    }
}

struct Exact_HSV {
    double hue = 0.0; // degrees
    double saturation = 0.0;
    double value = 0.0; // 0 to 255
};

// As the program sees it; a grey is a red one.
inline Exact_HSV hsv_of(Color color) {
    const HSV_Color hsv(color, {255, 0, 0});
    return {hsv.hue, hsv.saturation.value(), hsv.value.value()};
}

// Each channel a trapezium over the wheel, summed up from its straight parts.
inline std::array<double, 3> exact_rgb(const Exact_HSV& hsv) {
    std::array<double, 3> rgb{};
    for (std::size_t i = 0; i < rgb.size(); ++i) {
        const double from_own = std::remainder(hsv.hue - 120.0 * static_cast<double>(i), 360.0);
        const double share = std::clamp((120.0 - std::fabs(from_own)) / 60.0, 0.0, 1.0);
        rgb.at(i) = hsv.value * (1.0 - hsv.saturation) + hsv.value * hsv.saturation * share;
    }
    return rgb;
}

// No channel is further away than that.
inline ::testing::AssertionResult is_near(Color color, const std::array<double, 3>& exact,
                                          double distance = 0.5) {
    for (int i = 0; i < 3; ++i) {
        const double wanted = exact.at(static_cast<std::size_t>(i));
        if (std::fabs(color.channel(i) - wanted) > distance + 1e-6) {
            return ::testing::AssertionFailure()
                   << "channel " << i << ": " << int{color.channel(i)} << " for " << wanted;
        }
    }
    return ::testing::AssertionSuccess();
}

} // namespace quadrelle::testing
