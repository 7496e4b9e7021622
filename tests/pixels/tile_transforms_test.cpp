#include "pixels/tile.h"

#include "tests/support/tile_art.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace quadrelle {

using testing::Art;
using testing::art;
using testing::art_color;
using testing::make_tile;

namespace {

using Transform = void (Tile::*)(const Tile&);

Art transformed(const Art& rows, Transform transform) {
    const Tile source = make_tile(rows);
    Tile tile(source);
    (tile.*transform)(source);
    return art(tile);
}

Art shifted(const Art& rows, int dx, int dy) {
    const Tile source = make_tile(rows);
    Tile tile(source);
    tile.shift_wrapped(source, dx, dy);
    return art(tile);
}

Tile random_tile(int width, int height, std::mt19937& random) {
    Tile tile(width, height);
    for (Color& pixel : tile.pixels()) {
        pixel = Color::from_word(static_cast<std::uint32_t>(random()));
    }
    return tile;
}

// The channel that plain bilinear sampling in double precision gives.
double reference(const Tile& source, Size target, int x, int y, std::uint8_t Color::*part) {
    const auto position = [](int at, int from, int to) {
        const double span = from - (1.01 - static_cast<double>(from) / to);
        return std::clamp(at * span / to, 0.0, from - 1.0);
    };
    const double u = position(x, source.width(), target.width);
    const double v = position(y, source.height(), target.height);
    const int left = static_cast<int>(u);
    const int top = static_cast<int>(v);
    const auto channel = [&](int dx, int dy) { return source.get_pixel_clamped(left + dx, top + dy).*part; };
    const double upper = std::lerp(channel(0, 0), channel(1, 0), u - left);
    const double lower = std::lerp(channel(0, 1), channel(1, 1), u - left);
    return std::lerp(upper, lower, v - top);
}

void expect_near_reference(const Tile& source, const Tile& target) {
    for (int y = 0; y < target.height(); ++y) {
        for (int x = 0; x < target.width(); ++x) {
            for (const auto part : {&Color::r, &Color::g, &Color::b}) {
                ASSERT_NEAR(target.get_pixel(x, y).*part + 0.5, reference(source, target.size(), x, y, part),
                            0.51)
                    << x << ", " << y;
            }
            ASSERT_EQ(target.alpha_at(x, y), 255);
        }
    }
}

// The four pixels that replace the middle one of three by three.
std::array<Color, 4> scaled_middle(const Tile& source) {
    Tile target(6, 6);
    source.scale2x_into(target);
    return {target.get_pixel(2, 2), target.get_pixel(3, 2), target.get_pixel(2, 3), target.get_pixel(3, 3)};
}

Tile grey_row(std::initializer_list<int> values) {
    Tile tile(static_cast<int>(values.size()), 1);
    std::ranges::transform(values, tile.pixels().begin(), [](int value) {
        return Color{value, value, value, 9};
    });
    return tile;
}

} // namespace

TEST(Tile_Transforms, turn_and_mirror_pictures) {
    const Art picture = {"abc", "def", "ghi"};
    EXPECT_EQ(transformed(picture, &Tile::rotate_cw), (Art{"gda", "heb", "ifc"}));
    EXPECT_EQ(transformed(picture, &Tile::rotate_ccw), (Art{"cfi", "beh", "adg"}));
    EXPECT_EQ(transformed(picture, &Tile::mirror), (Art{"cba", "fed", "ihg"}));
    EXPECT_EQ(transformed(picture, &Tile::flip), (Art{"ghi", "def", "abc"}));
    const Art wide = {"abc", "def"};
    EXPECT_EQ(transformed(wide, &Tile::rotate_cw), wide);
    EXPECT_EQ(transformed(wide, &Tile::rotate_ccw), wide);
    EXPECT_EQ(transformed(wide, &Tile::mirror), (Art{"cba", "fed"}));
    EXPECT_EQ(transformed(wide, &Tile::flip), (Art{"def", "abc"}));
}

TEST(Tile_Transforms, shift_by_one_wraps_around) {
    const Art picture = {"abc", "def"};
    EXPECT_EQ(shifted(picture, 1, 0), (Art{"bca", "efd"}));
    EXPECT_EQ(shifted(picture, -1, 0), (Art{"cab", "fde"}));
    EXPECT_EQ(shifted(picture, 0, 1), (Art{"def", "abc"}));
    EXPECT_EQ(shifted(picture, 0, -1), (Art{"def", "abc"}));
    EXPECT_EQ(shifted({"a"}, -1, 1), (Art{"a"}));
    EXPECT_EQ(shifted({"abcd"}, 2, 0), (Art{"cdaa"})) << "past the far edge comes the first column";
}

TEST(Tile_Transforms, scale2x_rounds_corners_only) {
    const auto scaled = [](const Art& rows) {
        const Tile source = make_tile(rows);
        Tile target(2 * source.width(), 2 * source.height());
        source.scale2x_into(target);
        return art(target);
    };
    EXPECT_EQ(scaled({"a"}), (Art{"aa", "aa"}));
    EXPECT_EQ(scaled({"ab", "ab"}), (Art{"aabb", "aabb", "aabb", "aabb"}));
    EXPECT_EQ(scaled({"#..", ".#.", "..#"}),
              (Art{"##....", "#.#...", ".###..", "..###.", "...#.#", "....##"}));
    EXPECT_EQ(scaled({".##", "#..", "#.."}),
              (Art{"..####", ".#.###", "#.#...", "##....", "##....", "##...."}));
    EXPECT_EQ(scaled({"aab", "aab", "bbb"}),
              (Art{"aaaabb", "aaaabb", "aaaabb", "aaabbb", "bbbbbb", "bbbbbb"}));
}

TEST(Tile_Transforms, scale2x_leaves_ends_and_crossings_alone) {
    const std::array<Color, 4> plain = {art_color('a'), art_color('a'), art_color('a'), art_color('a')};
    EXPECT_EQ(scaled_middle(make_tile({".#.", "#a#", "..."})), plain);
    EXPECT_EQ(scaled_middle(make_tile({".#.", "#a.", ".#."})), plain);
    EXPECT_EQ(scaled_middle(make_tile({".#.", "#a#", ".#."})), plain);
}

TEST(Tile_Transforms, scale2x_compares_without_alpha_but_keeps_it) {
    const auto faint = [](char mark, int alpha) {
        const Color color = art_color(mark);
        return Color{color.r, color.g, color.b, alpha};
    };
    Tile falling = make_tile({".#.", "#ab", ".b."});
    falling.set_pixel(1, 0, faint('#', 40));
    falling.set_pixel(1, 2, faint('b', 50));
    EXPECT_EQ(scaled_middle(falling),
              (std::array{art_color('#'), art_color('a'), art_color('a'), faint('b', 50)}));
    Tile rising = make_tile({".#.", "ba#", ".b."});
    rising.set_pixel(1, 0, faint('#', 40));
    rising.set_pixel(1, 2, faint('b', 50));
    EXPECT_EQ(scaled_middle(rising),
              (std::array{art_color('a'), faint('#', 40), art_color('b'), art_color('a')}));
}

TEST(Tile_Transforms, resampling_to_the_same_size_copies_alpha_too) {
    std::mt19937 random(1);
    const Tile source = random_tile(5, 7, random);
    Tile target(5, 7);
    source.resample_into(target);
    EXPECT_TRUE(std::ranges::equal(source.pixels(), target.pixels()));
}

// Worked out by hand: two columns onto four are sampled at 0, 0.3725, 0.745 and 1.1175.
TEST(Tile_Transforms, resampling_gives_the_pixels_worked_out_by_hand) {
    Tile enlarged(4, 1);
    grey_row({0, 255}).resample_into(enlarged);
    EXPECT_EQ(enlarged.get_pixel(0, 0), (Color{0, 0, 0}));
    EXPECT_EQ(enlarged.get_pixel(1, 0), (Color{94, 94, 94}));
    EXPECT_EQ(enlarged.get_pixel(2, 0), (Color{189, 189, 189}));
    EXPECT_GE(enlarged.get_pixel(3, 0).r, 254);
    Tile reduced(2, 1);
    grey_row({0, 100, 200, 255}).resample_into(reduced);
    EXPECT_EQ(reduced.get_pixel(0, 0), (Color{0, 0, 0}));
    EXPECT_EQ(reduced.get_pixel(1, 0), (Color{227, 227, 227}));
}

TEST(Tile_Transforms, resampling_follows_bilinear_sampling) {
    std::mt19937 random(7);
    constexpr std::array<int, 9> lengths = {1, 2, 3, 5, 16, 24, 64, 100, 255};
    for (const int from : lengths) {
        for (const int to : lengths) {
            SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
            const Tile source = random_tile(from, 3, random);
            Tile target(to, 4);
            source.resample_into(target);
            ASSERT_NO_FATAL_FAILURE(expect_near_reference(source, target));
            const Tile upright = random_tile(2, from, random);
            Tile tall(3, to);
            upright.resample_into(tall);
            ASSERT_NO_FATAL_FAILURE(expect_near_reference(upright, tall));
        }
    }
}

TEST(Tile_Transforms, a_tile_without_pixels_resamples_to_black) {
    Tile target = make_tile({"ab", "cd"});
    Tile(0, 5).resample_into(target);
    EXPECT_EQ(art(target), (Art{"..", ".."}));
}

TEST(Tile_Transforms, anti_aliasing_softens_edges_and_makes_opaque) {
    Tile tile = make_tile({"....", "..##", "..##", "    "});
    tile.anti_alias();
    EXPECT_EQ(tile.get_pixel(0, 0), (Color{0, 0, 0}));
    const auto is_soft = [](Color color) { return color.r > 0 && color.r < 255; };
    EXPECT_GT(std::ranges::count_if(tile.pixels(), is_soft), 0);
    EXPECT_TRUE(std::ranges::all_of(tile.pixels(), [](Color color) { return color.a == 255; }));
    Tile plain = make_tile({"#"});
    plain.anti_alias();
    EXPECT_GE(plain.get_pixel(0, 0).r, 253);
}

} // namespace quadrelle
