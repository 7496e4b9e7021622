#include "color/palette_craft.h"

#include <gtest/gtest.h>

namespace quadrelle::testing {
namespace {

using Colors = std::vector<Color>;

TEST(Palette_Craft_Test, ramps_go_in_equal_steps) {
    struct Case {
        Color from, to;
        Ramp_Space space;
        Colors between;
    };
    for (const Case& test : std::vector<Case>{
             {{0, 0, 0, 0},
              {40, 80, 120, 200},
              Ramp_Space::rgb,
              {{10, 20, 30, 50}, {20, 40, 60, 100}, {30, 60, 90, 150}}},
             {{255, 0, 0}, {0, 255, 0}, Ramp_Space::hsv, {{255, 128, 0}, {255, 255, 0}, {128, 255, 0}}},
             // Over red, the shorter way.
             {{255, 255, 0}, {255, 0, 255}, Ramp_Space::hsv, {{255, 128, 0}, {255, 0, 0}, {255, 0, 128}}},
             {{0, 0, 200},
              {200, 200, 200},
              Ramp_Space::hsv,
              {{50, 50, 200}, {100, 100, 200}, {150, 150, 200}}},
             {{0, 0, 0},
              {200, 200, 200},
              Ramp_Space::hsv,
              {{50, 50, 50}, {100, 100, 100}, {150, 150, 150}}}}) {
        EXPECT_EQ(colors_between(test.from, test.to, 3, test.space), test.between);
    }
    EXPECT_TRUE(colors_between({}, {1, 2, 3}, 0, Ramp_Space::rgb).empty());
}

TEST(Palette_Craft_Test, sorts_and_keeps_every_colour) {
    const Color blue(0, 0, 255);
    const Color yellow(255, 255, 0);
    const Color dark_yellow(100, 100, 0);
    const Color grey(90, 90, 90);
    const Color nothing(9, 9, 9, 0);
    const Colors colors{blue, yellow, grey, dark_yellow, nothing, blue};
    EXPECT_EQ(sorted_by_hue(colors), (Colors{nothing, grey, dark_yellow, yellow, blue, blue}));
    EXPECT_EQ(sorted_by_lightness(colors), (Colors{nothing, blue, blue, grey, dark_yellow, yellow}));
    EXPECT_EQ(sorted_as(colors, Colors{grey, {0, 0, 0, 0}, yellow}),
              (Colors{grey, nothing, yellow, blue, dark_yellow, blue}));
}

TEST(Palette_Craft_Test, the_nearest_colour_is_the_one_that_looks_most_like_it) {
    const Colors palette{{0, 0, 0}, {255, 255, 255}, {200, 0, 0}, {0, 200, 0, 128}, {250, 250, 250, 0}};
    struct Case {
        Color color, nearest;
    };
    for (const Case& test : {Case{{180, 30, 30}, {200, 0, 0}},
                             {{30, 20, 40}, {0, 0, 0}},
                             {{0, 180, 20, 140}, {0, 200, 0, 128}},
                             {{0, 90, 0, 10}, {250, 250, 250, 0}},
                             {{200, 0, 0}, {200, 0, 0}}}) {
        EXPECT_EQ(nearest_of(palette, test.color), test.nearest) << test.color.word();
    }
    EXPECT_TRUE(is_among(palette, {1, 2, 3, 0}));
    EXPECT_TRUE(is_among(palette, {200, 0, 0}));
    EXPECT_FALSE(is_among(palette, {200, 0, 0, 254}));
}

} // namespace
} // namespace quadrelle::testing
