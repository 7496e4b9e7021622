#include "pixels/color_use.h"

#include "tests/support/tiles.h"

#include <array>

namespace quadrelle::testing {
namespace {

TEST(Color_Use_Test, the_most_used_colour_comes_first) {
    Tile one(3, 2);
    Tile other(2, 1);
    other.fill(red);
    other.set_pixel(0, 0, {1, 2, 3, 0});
    one.set_pixel(1, 0, white);
    one.set_pixel(2, 0, clear);
    one.set_pixel(1, 1, red);
    EXPECT_EQ(colors_by_use(std::array<const Tile*, 2>{&one, &other}),
              (std::vector<Color_Use>{{black, 3}, {clear, 2}, {red, 2}, {white, 1}}));
    EXPECT_TRUE(colors_by_use({}).empty());
}

TEST(Color_Use_Test, only_so_many_colours_are_counted) {
    Tile many(257, 256);
    for (int i = 0; i < many.pixel_count(); ++i) {
        many.set_pixel_at(i, Color(i & 255, i >> 8 & 255, i >> 16));
    }
    EXPECT_EQ(colors_by_use(std::array<const Tile*, 1>{&many}).size(), most_counted_colors);
}

} // namespace
} // namespace quadrelle::testing
