// HSV and HSL against other textbook forms of the same formulas.

#include "color/hsl.h"
#include "tests/color/hsv_grid.h"

#include <limits>

namespace quadrelle::testing {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

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
}

TEST(HSV_Color, a_grey_takes_the_hue_of_its_reference) {
    EXPECT_EQ(HSV_Color({128, 128, 128}, {0, 255, 0}).hue, 120.0);
    EXPECT_EQ(HSV_Color({9, 8, 8}, {0, 255, 0}).hue, 0.0);
    HSV_Color grey({128, 128, 128}, {7, 7, 7});
    EXPECT_TRUE(std::isnan(grey.hue));
    grey.saturation = 1.0;
    EXPECT_EQ(grey.to_rgb(), Color(128, 128, 128));
}

TEST(HSV_Color, from_rgb_is_exact_and_back_loses_at_most_a_truncation) {
    for_many_colors([](Color color) {
        const auto exact = exact_rgb(hsv_of(color));
        ASSERT_TRUE(is_near(color, exact, 0.0)) << color.word();
        const Color back = HSV_Color(color, {255, 0, 0}).to_rgb();
        ASSERT_EQ(back.max_channel(), color.max_channel());
        ASSERT_TRUE(is_near(back, {exact[0] - 0.5, exact[1] - 0.5, exact[2] - 0.5})) << color.word();
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
        EXPECT_EQ(HSL_Color(pure, pure).to_rgb(), pure);
    }
}

// By the value and saturation in HSV that a lightness and a saturation stand for.
TEST(HSL_Color, to_rgb_over_the_whole_space) {
    HSL_Color hsl;
    for (hsl.hue = 0.0; hsl.hue <= 360.0; hsl.hue += 2.5) {
        for (int i = 0; i < 17 * 33; ++i) {
            const double s = i % 17 / 16.0;
            const double l = i / 17 / 32.0;
            hsl.saturation = s;
            hsl.lightness = l;
            const double value = l + s * std::min(l, 1.0 - l);
            const double share = value == 0.0 ? 0.0 : 2.0 * (1.0 - l / value);
            ASSERT_TRUE(is_near(hsl.to_rgb(), exact_rgb({hsl.hue, share, 255.0 * value})));
        }
    }
    hsl.lightness = nan;
    EXPECT_EQ(hsl.to_rgb(), Color(0, 0, 0));
}

} // namespace
} // namespace quadrelle::testing
