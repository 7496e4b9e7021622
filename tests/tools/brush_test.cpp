#include "tools/brush.h"

#include "tests/support/tiles.h"

#include <stdexcept>

namespace quadrelle::testing {

TEST(Brush, repeats_as_a_wallpaper_to_all_sides) {
    const Brush stamp = stamp_brush(make_tile({"abc"}), make_tile({"##."}));
    EXPECT_EQ(stamp.wallpaper_pixel(3, 7), art_color('a'));
    EXPECT_EQ(stamp.wallpaper_pixel(-2, -1), art_color('b'));
    EXPECT_EQ(stamp.wallpaper_pixel(-1, 0), std::nullopt);
    EXPECT_EQ(stamp.wallpaper_pixel(-3, 0), art_color('a'));
}

TEST(Brush, needs_a_pixel_and_one_for_each_place) {
    EXPECT_THROW(stamp_brush(Tile(0, 3), Tile(0, 3)), std::length_error);
    EXPECT_THROW(Brush({-1, -1}, {Color()}, Brush_Owner::pen), std::length_error);
    EXPECT_THROW(Brush({2, 2}, {Color(), Color(), Color()}, Brush_Owner::pen), std::length_error);
}

} // namespace quadrelle::testing
