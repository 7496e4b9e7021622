#include "pixels/tile.h"

#include "tests/support/tile_art.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

namespace quadrelle {

using testing::Art;
using testing::art;
using testing::art_color;
using testing::make_tile;

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

TEST(Tile, pastes_with_an_alpha_of_its_own_where_it_is_not_transparent) {
    Tile target = make_tile({"###"});
    Tile source(2, 1);
    source.set_pixel(0, 0, {1, 2, 3, 0});
    source.set_pixel(1, 0, {4, 5, 6, 200});
    source.paste_into_with_alpha(target, 1, 0, 77);
    EXPECT_EQ(target.get_pixel(0, 0), art_color('#'));
    EXPECT_EQ(target.get_pixel(1, 0), (Color{1, 2, 3, 0}));
    EXPECT_EQ(target.get_pixel(2, 0), (Color{4, 5, 6, 77}));
}

TEST(Tile, masks_by_white_whatever_its_alpha) {
    Tile mask = make_tile({"#.", "a#"});
    mask.set_pixel(1, 1, {255, 255, 255, 0});
    Tile target = make_tile({"zz", "zz"});
    mask.mask_into(make_tile({"ab", "cd"}), target);
    EXPECT_EQ(art(target), (Art{"a ", " d"}));
}

TEST(Tile, overlaps_where_a_pixel_leaves_the_target_or_meets_one) {
    const Tile piece = make_tile({" a", "a "});
    EXPECT_FALSE(piece.overlaps(make_tile({"   ", "   "}), 0, 0));
    EXPECT_FALSE(piece.overlaps(make_tile({"b  ", " b "}), 0, 0));
    EXPECT_TRUE(piece.overlaps(make_tile({" b ", "   "}), 0, 0));
    EXPECT_TRUE(piece.overlaps(make_tile({"   ", "   "}), 2, 0));
    EXPECT_TRUE(piece.overlaps(make_tile({"   ", "   "}), -1, 0));
    EXPECT_FALSE(make_tile({" ", "a"}).overlaps(make_tile({"   "}), 1, -1));
    Tile pale(1, 1);
    pale.fill({9, 0, 0, 0});
    EXPECT_TRUE(pale.overlaps(make_tile({"."}), 0, 0)) << "only black is empty";
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

TEST(Tile, changes_alpha_by_alpha_and_by_key) {
    Tile tile(3, 1);
    tile.set_pixel(0, 0, {1, 1, 1, 10});
    tile.set_pixel(1, 0, {2, 2, 2, 20});
    tile.replace_alpha(10, 99);
    EXPECT_EQ(tile.alpha_at(0, 0), 99);
    EXPECT_EQ(tile.alpha_at(1, 0), 20);
    tile.key_transparency({1, 1, 1, 255});
    EXPECT_EQ(tile.get_pixel(0, 0), (Color{1, 1, 1, 0}));
    EXPECT_EQ(tile.get_pixel(1, 0), (Color{2, 2, 2, 255}));
}

TEST(Tile, blends_by_the_share_that_each_pixel_keeps) {
    Tile tile(1, 1);
    tile.fill({100, 0, 255, 50});
    tile.blend_towards({200, 255, 0, 7}, 0.75);
    EXPECT_EQ(tile.get_pixel(0, 0), (Color{125, 63, 191, 7}));
}

TEST(Tile, stores_pixels_as_alpha_blue_green_red) {
    const std::array<std::uint8_t, 8> bytes = {4, 3, 2, 1, 8, 7, 6, 5};
    Tile tile(2, 1);
    tile.read_pixels(bytes);
    EXPECT_EQ(tile.get_pixel(0, 0), (Color{1, 2, 3, 4}));
    EXPECT_EQ(tile.get_pixel(1, 0), (Color{5, 6, 7, 8}));
    std::array<std::uint8_t, 8> written = {};
    tile.write_pixels(written);
    EXPECT_EQ(written, bytes);
    tile.read_pixels(std::span(bytes).first(3));
    EXPECT_EQ(tile.get_pixel(0, 0), (Color{1, 2, 3, 4}));
}

TEST(Tile, copies_are_independent_and_swaps_exchange) {
    Tile first = make_tile({"ab"});
    Tile second(first);
    second.set_pixel(0, 0, art_color('z'));
    first.swap_pixels(second);
    EXPECT_EQ(art(first), (Art{"zb"}));
    EXPECT_EQ(art(second), (Art{"ab"}));
    first.swap_pixels(first);
    second.copy_to(first);
    EXPECT_EQ(art(first), (Art{"ab"}));
}

// The sizes that a file may ask for, in all pairs, through every operation that takes another tile.
TEST(Tile, survives_every_operation_at_every_size) {
    const std::array<Size, 6> sizes = {{{0, 0}, {0, 3}, {3, 0}, {1, 1}, {2, 5}, {4, 4}}};
    for (const Size size : sizes) {
        for (const Size other_size : sizes) {
            Tile tile(size.width, size.height);
            Tile other(other_size.width, other_size.height);
            tile.copy_from(other);
            tile.copy_to(other);
            tile.swap_pixels(other);
            tile.paste_into(other, 1, -1);
            tile.paste_into_with_alpha(other, -1, 1, 5);
            tile.mask_into(other, other);
            tile.resample_into(other);
            tile.scale2x_into(other);
            tile.rotate_cw(other);
            tile.rotate_ccw(other);
            tile.mirror(other);
            tile.flip(other);
            tile.shift_wrapped(other, -1, 1);
            tile.anti_alias();
            tile.replace_near(0, 0, {}, {1, 1, 1});
            EXPECT_EQ(tile.size(), size);
            EXPECT_EQ(tile.overlaps(other, 0, 0), tile.pixel_count() > 0);
            EXPECT_TRUE(tile.is_outside(size.width, 0));
            EXPECT_EQ(tile.get_pixel_clamped(7, 7), tile.get_pixel(size.width - 1, size.height - 1));
        }
    }
}

} // namespace quadrelle
