#include "pixels/tile.h"

#include "tests/support/tiles.h"

#include <stdexcept>

namespace quadrelle::testing {

TEST(Tile, answers_fixed_colors_outside_and_writes_nothing_there) {
    Tile tile = make_tile({"ab", "cd", "ef"});
    for (const Tile_Point p : {Tile_Point{-1, 0}, {0, -1}, {2, 0}, {0, 3}, {2, 3}, {-1, -1}}) {
        EXPECT_EQ(tile.get_pixel(p.x, p.y), (Color{255, 0, 255, 0}));
        EXPECT_FALSE(tile.set_pixel(p.x, p.y, {1, 2, 3}));
    }
    EXPECT_EQ(tile.get_pixel_at(6), (Color{250, 50, 250, 255}));
    EXPECT_EQ(tile.get_pixel_at(-1), (Color{250, 50, 250, 255}));
    tile.set_pixel_at(6, {1, 2, 3});
    tile.set_pixel_at(-1, {1, 2, 3});
    EXPECT_EQ(art(tile), (Art{"ab", "cd", "ef"}));
    EXPECT_TRUE(tile.set_pixel(1, 2, art_color('z')));
    EXPECT_EQ(tile.get_pixel_at(5), art_color('z'));
    EXPECT_EQ(tile.get_pixel_clamped(-5, 9), art_color('e'));
    EXPECT_EQ(tile.get_pixel_clamped(2, -1), art_color('b'));
}

TEST(Tile, refuses_negative_and_enormous_sizes) {
    EXPECT_THROW(Tile(-1, 4), std::length_error);
    EXPECT_THROW(Tile(4, -1), std::length_error);
    EXPECT_THROW(Tile(65536, 65536), std::length_error);
}

TEST(Tile, pastes_only_what_falls_inside) {
    const Tile source = make_tile({"ab", "cd"});
    const auto pasted = [&](int dx, int dy) {
        Tile target = make_tile({"...", "..."});
        source.paste_into(target, dx, dy);
        return art(target);
    };
    EXPECT_EQ(pasted(1, 0), (Art{".ab", ".cd"}));
    EXPECT_EQ(pasted(-1, -1), (Art{"d..", "..."}));
    EXPECT_EQ(pasted(2, 1), (Art{"...", "..a"}));
    EXPECT_EQ(pasted(3, 0), (Art{"...", "..."}));
}

TEST(Tile, finds_the_bounds_of_white) {
    EXPECT_EQ(make_tile({"....", ".#..", "...#"}).white_bounds(), (Rectangle{1, 1, 3, 2}));
    EXPECT_EQ(make_tile({"#"}).white_bounds(), (Rectangle{0, 0, 1, 1}));
    EXPECT_EQ(make_tile({"..#", "..."}).white_bounds(), (Rectangle{2, 0, 1, 1}));
    EXPECT_EQ(make_tile({"...", "a.."}).white_bounds(), (Rectangle{5, 4, -5, -4}));
    Tile nearly(1, 1);
    nearly.fill({255, 255, 254});
    EXPECT_LE(nearly.white_bounds().width, 0);
}

TEST(Tile, replaces_only_the_nine_pixels_around) {
    Tile tile = make_tile({"aaaa", "abaa", "aaaa", "aaaa"});
    Color match = art_color('a');
    match.a = 3;
    tile.replace_near(1, 1, match, art_color('z'));
    EXPECT_EQ(art(tile), (Art{"zzza", "zbza", "zzza", "aaaa"}));
    tile.replace_near(4, 4, match, art_color('y'));
    EXPECT_EQ(art(tile), (Art{"zzza", "zbza", "zzza", "aaay"}));
}

} // namespace quadrelle::testing
