#include "color/hsv_change.h"

#include "tests/color/hsv_grid.h"

namespace quadrelle::testing {

TEST(hsv_change, of_nothing_is_the_identity_for_every_color) {
    for (std::uint32_t rgb = 0; rgb < 0x1000000U; rgb += 3) {
        const Color color = Color::from_word(rgb | 0xc8000000U);
        ASSERT_EQ(adjusted(color, {}), color) << rgb;
    }
}

TEST(hsv_change, agrees_with_an_independent_conversion) {
    for_many_colors([](Color color) {
        const auto exact = hsv_of(color);
        ASSERT_TRUE(is_near(adjusted(color, {-50, -30, -20}),
                            exact_rgb({exact.hue - 50.0, exact.saturation * 0.7, exact.value * 0.8})));
        ASSERT_TRUE(is_near(adjusted(color, {170, 60, 25}),
                            exact_rgb({exact.hue + 170.0, std::min(exact.saturation * 1.6, 1.0),
                                       0.75 * exact.value + 63.75})));
    });
}

TEST(hsv_change, leaves_greys_grey_and_reaches_both_ends) {
    for (int level = 0; level < 256; ++level) {
        const Color grey(level, level, level, 9);
        EXPECT_EQ(adjusted(grey, {.hue = 77, .saturation = 100}), grey);
        EXPECT_TRUE(adjusted(grey, {-180, 100, 33}).is_grey());
    }
    for_many_colors([](Color color) {
        ASSERT_TRUE(adjusted(color, {.saturation = -100}).is_grey());
        ASSERT_TRUE(adjusted(color, {.value = -100}).same_rgb({0, 0, 0}));
        ASSERT_EQ(adjusted(color, {.value = 100}).max_channel(), 255);
    });
}

TEST(hsv_change, keeps_alpha_and_leaves_alone_what_is_not_seen) {
    const HSV_Change change{20, 30, 40};
    Color seen = adjusted({10, 200, 30}, change);
    EXPECT_NE(seen, Color(10, 200, 30));
    seen.a = 1;
    EXPECT_EQ(adjusted({10, 200, 30, 1}, change), seen);
    EXPECT_EQ(adjusted({10, 200, 30, 0}, change), Color(10, 200, 30, 0));
    EXPECT_EQ(adjusted({0, 0, 0, 0}, change), Color(0, 0, 0, 0));
}

} // namespace quadrelle::testing
