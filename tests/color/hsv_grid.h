#pragma once

// Colours to go through, and the textbook way from hue, saturation and value to a colour.

#include "color/color.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quadrelle::testing {

// 52 x 52 x 52, and 2 more of each channel so that neighbours of the ends are there.
template <typename Action>
void for_grid_colors(Action action) {
    constexpr auto channel = [](int i) { return i < 52 ? 5 * i : i == 52 ? 1 : 254; };
    for (int r = 0; r < 54; ++r) {
        for (int g = 0; g < 54; ++g) {
            for (int b = 0; b < 54; ++b) {
                action(Color(channel(r), channel(g), channel(b)));
            }
        }
    }
}

struct Exact_HSV {
    double hue = 0.0; // degrees
    double saturation = 0.0;
    double value = 0.0; // 0 to 255
};

// The hue from where the middle channel lies between the others, six cases written out.
inline Exact_HSV exact_hsv(Color c) {
    const double high = std::max({c.r, c.g, c.b});
    const double low = std::min({c.r, c.g, c.b});
    const double range = high - low;
    if (range == 0.0) {
        return {0.0, 0.0, high};
    }
    double hue = 0.0;
    if (c.b == low && c.r == high) {
        hue = 60.0 * (c.g - low) / range;
    } else if (c.b == low) {
        hue = 120.0 - 60.0 * (c.r - low) / range;
    } else if (c.r == low && c.g == high) {
        hue = 120.0 + 60.0 * (c.b - low) / range;
    } else if (c.r == low) {
        hue = 240.0 - 60.0 * (c.g - low) / range;
    } else if (c.b == high) {
        hue = 240.0 + 60.0 * (c.r - low) / range;
    } else {
        hue = 360.0 - 60.0 * (c.b - low) / range;
    }
    return {hue, range / high, high};
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

// Each channel is the nearest whole number.
inline ::testing::AssertionResult is_nearest(Color color, const std::array<double, 3>& exact) {
    for (int i = 0; i < 3; ++i) {
        if (std::fabs(color.channel(i) - exact.at(static_cast<std::size_t>(i))) > 0.5 + 1e-6) {
            return ::testing::AssertionFailure() << "channel " << i << ": " << int{color.channel(i)}
                                                 << " for " << exact.at(static_cast<std::size_t>(i));
        }
    }
    return ::testing::AssertionSuccess();
}

} // namespace quadrelle::testing
