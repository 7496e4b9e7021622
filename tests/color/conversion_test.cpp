// HSV and HSL against other textbook forms of the same formulas.

#include "color/hsl.h"
#include "color/hsv.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace quadrelle {

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

template <typename Action>
void for_many_colors(Action action) {
    for (int r = 0; r <= 255; r += 5) {
        for (int g = 0; g <= 255; g += 5) {
            for (int b = 0; b <= 255; b += 5) {
                action(Color(r, g, b));
            }
        }
    }
}

// The hue as an angle in the plane across the grey axis, straightened within its sixth of the wheel.
double hue_reference(Color c) {
    std::array<int, 3> sorted = {c.r, c.g, c.b};
    std::ranges::sort(sorted);
    const double within = static_cast<double>(sorted[1] - sorted[0]) / (sorted[2] - sorted[0]);
    int sixth = 0;
    if (c.r >= c.g && c.g >= c.b) {
        sixth = 0;
    } else if (c.g >= c.r && c.r >= c.b) {
        sixth = 1;
    } else if (c.g >= c.b && c.b >= c.r) {
        sixth = 2;
    } else if (c.b >= c.g && c.g >= c.r) {
        sixth = 3;
    } else if (c.b >= c.r && c.r >= c.g) {
        sixth = 4;
    } else {
        sixth = 5;
    }
    return 60.0 * (sixth % 2 == 0 ? sixth + within : sixth + 1 - within);
}

double distance_on_the_wheel(double a, double b) {
    const double difference = std::fabs(a - b);
    return std::min(difference, 360.0 - difference);
}

void expect_truncated(int channel, double exact) {
    EXPECT_GE(channel, std::floor(exact - 1e-9));
    EXPECT_LE(channel, std::floor(exact + 1e-9));
}

Color through_hsl(Color color) {
    return HSL_Color(color, color).to_rgb();
}

} // namespace

TEST(Bounded_Value, clamps_all_but_what_is_not_a_number) {
    Bounded_Value value(0.0, 255.0, 300.0);
    EXPECT_EQ(value.value(), 255.0);
    value -= 254.5;
    EXPECT_EQ(value.channel(), 0);
    value += -7.0;
    EXPECT_EQ(value.value(), 0.0);
    value = 127.999;
    EXPECT_EQ(value.channel(), 127);
    value = nan;
    EXPECT_TRUE(std::isnan(value.value()));
    EXPECT_EQ(value.channel(), 0);
    EXPECT_EQ(value.high(), 255.0);
}

TEST(HSV_Color, a_grey_takes_the_hue_of_its_reference) {
    const HSV_Color color({128, 128, 128}, {0, 255, 0});
    EXPECT_EQ(color.hue, 120.0);
    EXPECT_EQ(color.saturation.value(), 0.0);
    EXPECT_EQ(color.value.value(), 128.0);
    EXPECT_EQ(color.to_rgb(), Color(128, 128, 128));
    EXPECT_EQ(HSV_Color({9, 8, 8}, {0, 255, 0}).hue, 0.0);

    HSV_Color grey({128, 128, 128}, {7, 7, 7});
    EXPECT_TRUE(std::isnan(grey.hue));
    grey.saturation = 1.0;
    EXPECT_EQ(grey.to_rgb(), Color(128, 128, 128));
}

TEST(HSV_Color, from_rgb_and_back_loses_at_most_a_truncation) {
    for_many_colors([](Color color) {
        const HSV_Color hsv(color, {1, 2, 3});
        EXPECT_EQ(hsv.value.value(), color.max_channel());
        if (!color.is_grey()) {
            EXPECT_NEAR(hsv.saturation.value() * color.max_channel(),
                        color.max_channel() - color.min_channel(), 1e-9);
            EXPECT_LT(distance_on_the_wheel(hsv.hue, hue_reference(color)), 1e-9);
        }
        const Color back = hsv.to_rgb();
        EXPECT_EQ(back.max_channel(), color.max_channel());
        for (int i = 0; i < 3; ++i) {
            expect_truncated(back.channel(i), color.channel(i));
        }
    });
}

TEST(HSV_Color, hues_off_the_wheel_give_grey) {
    HSV_Color hsv({255, 0, 0}, {});
    hsv.hue = 360.0;
    EXPECT_EQ(hsv.to_rgb(), Color(255, 0, 0));
    for (const double hue : {-0.001, -60.0, 420.0, 1e300, nan, infinity, -infinity}) {
        hsv.hue = hue;
        EXPECT_EQ(hsv.to_rgb(), Color(255, 255, 255)) << hue;
    }
    hsv.hue = 10.0;
    hsv.value = nan;
    EXPECT_EQ(hsv.to_rgb(), Color(0, 0, 0));
}

TEST(HSL_Color, a_round_trip_deliberately_changes_most_colors) {
    const HSL_Color hsl({200, 100, 100}, {200, 100, 100});
    EXPECT_EQ(hsl.hue, 0.0);
    EXPECT_NEAR(hsl.saturation.value(), 300.0 / 730.0, 1e-12);
    EXPECT_EQ(hsl.to_rgb(), Color(193, 107, 107));
    for (const Color pure : {Color(255, 0, 0), Color(0, 255, 0), Color(255, 0, 255), Color(77, 77, 77)}) {
        EXPECT_EQ(through_hsl(pure), pure);
    }
}

TEST(HSL_Color, to_rgb_over_the_whole_space) {
    HSL_Color hsl;
    for (double hue = 0.0; hue <= 360.0; hue += 1.25) {
        for (double s = 0.0; s <= 1.0; s += 0.0625) {
            for (double l = 0.0; l <= 1.0; l += 0.03125) {
                hsl.hue = hue;
                hsl.saturation = s;
                hsl.lightness = l;
                const Color result = hsl.to_rgb();
                const auto exact = [&](double turn) {
                    const double k = std::fmod(turn + hue / 30.0, 12.0);
                    return 255.0 *
                           (l - s * std::min(l, 1.0 - l) * std::max(-1.0, std::min({k - 3.0, 9.0 - k, 1.0})));
                };
                ASSERT_NEAR(result.r, exact(0.0), 0.5 + 1e-9);
                ASSERT_NEAR(result.g, exact(8.0), 0.5 + 1e-9);
                ASSERT_NEAR(result.b, exact(4.0), 0.5 + 1e-9);
            }
        }
    }
    hsl.lightness = nan;
    EXPECT_EQ(hsl.to_rgb(), Color(0, 0, 0));
}

} // namespace quadrelle
