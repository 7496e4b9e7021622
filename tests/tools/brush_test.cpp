#include "tools/brush.h"

#include "tests/support/drawn.h"
#include "tools/pens.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace quadrelle {

using testing::Art;
using testing::art_color;
using testing::blank;
using testing::drawn;
using testing::make_tile;

namespace {

Art picture(const Brush& brush) {
    return drawn(blank(brush.size().width, brush.size().height), [&](Drawing_Target& target) {
        apply_brush(target, brush, {0, 0}, {});
    });
}

Art mask_picture(Brush_Shape shape, int size_index) {
    return picture(built_in_brush(shape, size_index, art_color('#')));
}

} // namespace

TEST(Brush, has_the_shapes_that_the_selector_shows) {
    EXPECT_EQ(mask_picture(Brush_Shape::disc, 2), (Art{".#.", "###", ".#."}));
    EXPECT_EQ(mask_picture(Brush_Shape::disc, 4), (Art{".###.", "#####", "#####", "#####", ".###."}));
    EXPECT_EQ(mask_picture(Brush_Shape::disc, 5),
              (Art{"..##..", ".####.", "######", "######", ".####.", "..##.."}));
    EXPECT_EQ(mask_picture(Brush_Shape::square, 3), (Art{"####", "####", "####", "####"}));
    EXPECT_EQ(mask_picture(Brush_Shape::falling_diagonal, 3), (Art{"#...", ".#..", "..#.", "...#"}));
    EXPECT_EQ(mask_picture(Brush_Shape::rising_diagonal, 3), (Art{"...#", "..#.", ".#..", "#..."}));
    EXPECT_EQ(mask_picture(Brush_Shape::cross, 4), (Art{"#...#", ".#.#.", "..#..", ".#.#.", "#...#"}));
    EXPECT_EQ(mask_picture(Brush_Shape::ring, 2), (Art{".#.", "#.#", ".#."}));
    EXPECT_EQ(mask_picture(Brush_Shape::ring, 5),
              (Art{"..##..", ".#..#.", "#....#", "#....#", ".#..#.", "..##.."}));
    EXPECT_EQ(mask_picture(Brush_Shape::square_outline, 3), (Art{"####", "#..#", "#..#", "####"}));
}

TEST(Brush, is_recoloured_unless_it_is_a_stamp) {
    Brush disc = built_in_brush(Brush_Shape::disc, 2, art_color('a'));
    disc.recolor(art_color('b'));
    EXPECT_EQ(picture(disc), (Art{".b.", "bbb", ".b."}));
    Brush stamp = stamp_brush(make_tile({"ab", "cd", "ef"}), make_tile({"#.", "##", " #"}));
    stamp.recolor(art_color('z'));
    EXPECT_EQ(stamp.owner(), Brush_Owner::stamp_brush);
    EXPECT_EQ(picture(stamp), (Art{"a.", "cd", ".f"}));
}

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

} // namespace quadrelle
