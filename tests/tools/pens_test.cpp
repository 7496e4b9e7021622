#include "tools/pens.h"

#include "tests/support/tiles.h"

#include <limits>

namespace quadrelle::testing {
namespace {

const Brush& pixel_brush() {
    static const Brush brush = built_in_brush(Brush_Shape::square, 0, art_color('a'));
    return brush;
}

const Brush& disc_brush() {
    static const Brush brush = built_in_brush(Brush_Shape::disc, 2, art_color('a'));
    return brush;
}

// What the ink makes of one pixel under a one-pixel brush of that colour.
Color inked(Color pixel, const Ink& ink, Color brush_color = {}) {
    Tile tile(1, 1);
    tile.fill(pixel);
    Drawing_Target target(tile);
    apply_brush(target, built_in_brush(Brush_Shape::square, 0, brush_color), {0, 0}, ink);
    return tile.get_pixel(0, 0);
}

Art stroke(const Art& before, const Pen& pen, Tile_Point from, Tile_Point to) {
    return drawn(before, [&](Drawing_Target& target) {
        draw_segment(target, pen, from, to, Segment_Start::included);
    });
}

Ink lightness(Pixel_Operation operation, Lightness_Mode mode) {
    Ink ink{operation, {}};
    ink.lightness_mode = mode;
    return ink;
}

Ink colorize(Color color, Colorize_Type type) {
    Ink ink{Pixel_Operation::colorize, color};
    ink.colorize_type = type;
    return ink;
}

} // namespace

TEST(Pens, paint_the_given_colour_over_that_of_the_brush_alpha_included) {
    const Color glass{10, 20, 30, 40};
    EXPECT_EQ(inked({1, 2, 3, 4}, {}, glass), glass);
    EXPECT_EQ(inked({1, 2, 3, 4}, {Pixel_Operation::paint, glass}), glass);
}

TEST(Pens, lighten_and_darken) {
    const Ink lighten = lightness(Pixel_Operation::lighten, Lightness_Mode::linear);
    const Ink darken = lightness(Pixel_Operation::darken, Lightness_Mode::linear);
    EXPECT_EQ(inked({254, 100, 0, 7}, lighten), (Color{255, 102, 2, 7}));
    EXPECT_EQ(inked({255, 100, 1, 7}, darken), (Color{253, 98, 0, 7}));
    const Ink warm_lighten = lightness(Pixel_Operation::lighten, Lightness_Mode::perception);
    const Ink warm_darken = lightness(Pixel_Operation::darken, Lightness_Mode::perception);
    EXPECT_EQ(inked({100, 100, 100, 0}, warm_lighten), (Color{100, 101, 100, 0}));
    EXPECT_EQ(inked({100, 100, 100, 0}, warm_darken), (Color{99, 98, 99, 0}));
    EXPECT_EQ(inked({255, 255, 255}, warm_lighten), (Color{255, 255, 255}));
    EXPECT_EQ(inked({0, 0, 0}, warm_darken), (Color{0, 0, 0}));
}

TEST(Pens, colorize_toward_the_tool_colour) {
    const Color pure_red{255, 0, 0};
    const Color grey{100, 100, 100, 9};
    EXPECT_EQ(inked(grey, colorize(pure_red, Colorize_Type::linear)), (Color{173, 0, 0, 9}));
    EXPECT_EQ(inked(grey, colorize({}, Colorize_Type::linear)), (Color{0, 0, 0, 9}));
    EXPECT_EQ(inked({255, 255, 255}, colorize(pure_red, Colorize_Type::linear)), pure_red);
    EXPECT_EQ(inked(grey, colorize(pure_red, Colorize_Type::luma)), (Color{100, 0, 0, 9}));
    EXPECT_EQ(inked({0, 255, 0, 9}, colorize({50, 50, 50}, Colorize_Type::luma)), (Color{255, 255, 255, 9}));
    EXPECT_EQ(inked(grey, {Pixel_Operation::colorize, {}}, pure_red), (Color{173, 0, 0, 9}));
}

TEST(Pens, bring_the_history_back) {
    const Tile history = make_tile({"x ", "zy"});
    Ink ink{Pixel_Operation::history, {}};
    const auto square = built_in_brush(Brush_Shape::square, 2, art_color('a'));
    const auto apply = [&](Drawing_Target& target) { apply_brush(target, square, {1, 0}, ink); };
    EXPECT_EQ(drawn({"bbb", "bbb"}, apply), (Art{"bbb", "bbb"}));
    ink.history = &history;
    EXPECT_EQ(drawn({"bbb", "bbb"}, apply), (Art{"b b", "byb"}));
}

TEST(Pens, snap_to_the_grid_of_the_brush_toward_zero) {
    EXPECT_EQ(snapped_to_grid({7, 5}, {3, 3}), (Tile_Point{6, 3}));
    EXPECT_EQ(snapped_to_grid({-1, -4}, {3, 3}), (Tile_Point{0, -3}));
    EXPECT_EQ(snapped_to_grid({5, 5}, {1, 6}), (Tile_Point{5, 0}));
    EXPECT_EQ(stroke(blank(7, 3), {disc_brush(), Pen_Mode::offset, {}}, {2, 1}, {3, 1}),
              (Art{".a..a..", "aaaaaa.", ".a..a.."}));
}

TEST(Pens, uncover_a_wallpaper_that_stands_still) {
    const Brush stamp = stamp_brush(make_tile({"abc", "def"}), make_tile({"###", "#.#"}));
    const Pen pattern{stamp, Pen_Mode::pattern, {}};
    EXPECT_EQ(stroke(blank(8, 4), pattern, {4, 1}, {4, 1}),
              (Art{"........", ".....fd.", "....bca.", "........"}));
    EXPECT_EQ(stroke(blank(8, 4), pattern, {-3, 0}, {7, 0}),
              (Art{"abcabcab", "d.fd.fd.", "........", "........"}));
    EXPECT_EQ(stroke(blank(8, 2), pattern, {7, -1}, {-4, -1}), (Art{"abcabcab", "........"}));
    const Art shifted = drawn(blank(3, 2), [&](Drawing_Target& target) {
        apply_pattern(target, stamp, {0, 0}, {-1, 1}, {});
    });
    EXPECT_EQ(shifted, (Art{"fd.", "cab"}));
}

TEST(Pens, leave_no_gap_in_a_fast_stroke) {
    const Pen pen{pixel_brush(), Pen_Mode::brush, {}};
    EXPECT_EQ(stroke(blank(6, 3), pen, {5, 2}, {0, 0}), (Art{"aa....", "..aa..", "....aa"}));
    EXPECT_EQ(stroke(blank(3, 3), pen, {-7, -7}, {20000, 20000}), (Art{"a..", ".a.", "..a"}));
    EXPECT_EQ(stroke(blank(3, 1), pen, {-20000, 0}, {20000, 0}), (Art{"aaa"}));
}

TEST(Pens, do_not_work_twice_on_the_pixel_where_segments_meet) {
    Tile tile(4, 1);
    Drawing_Target target(tile);
    const Pen pen{pixel_brush(), Pen_Mode::brush,
                  lightness(Pixel_Operation::lighten, Lightness_Mode::linear)};
    draw_segment(target, pen, {0, 0}, {0, 0}, Segment_Start::included);
    draw_segment(target, pen, {0, 0}, {2, 0}, Segment_Start::left_out);
    draw_segment(target, pen, {2, 0}, {2, 0}, Segment_Start::left_out);
    draw_segment(target, pen, {2, 0}, {3, 0}, Segment_Start::left_out);
    for (const Color pixel : tile.pixels()) {
        EXPECT_EQ(pixel, (Color{2, 2, 2}));
    }
    const Pen offset{disc_brush(), Pen_Mode::offset, pen.ink};
    draw_segment(target, offset, {0, 0}, {2, 0}, Segment_Start::included);
    draw_segment(target, offset, {2, 0}, {1, 0}, Segment_Start::left_out);
    EXPECT_EQ(tile.get_pixel(1, 0), (Color{4, 4, 4}));
}

TEST(Pens, smudge_half_of_the_source_into_each_pixel) {
    const Brush row = stamp_brush(make_tile({"##"}), make_tile({"##"}));
    const auto smudged = [&](Tile_Point from, Tile_Point by) {
        Tile tile(3, 1);
        tile.set_pixel(0, 0, {200, 101, 0, 255});
        tile.set_pixel(1, 0, {0, 0, 9, 10});
        tile.set_pixel(2, 0, {0, 0, 0, 20});
        Drawing_Target target(tile);
        smudge(target, row, from, by);
        return picture_of(tile);
    };
    // The last one from the pixel just changed.
    EXPECT_EQ(smudged({1, 0}, {0, 0}), (Tile_Picture{{200, 101, 0, 255}, {100, 50, 4, 10}, {50, 25, 2, 20}}));
    for (const Tile_Point idle : {Tile_Point{0, 0}, {0, 1}, {-2, 0}, {1 << 30, -(1 << 30)}}) {
        EXPECT_EQ(smudged({0, 0}, idle), (Tile_Picture{{200, 101, 0, 255}, {0, 0, 9, 10}, {0, 0, 0, 20}}));
    }
}

TEST(Pens, smudge_under_the_mask_and_inside_the_selection) {
    const Brush stamp = stamp_brush(make_tile({"####"}), make_tile({"#.##"}));
    const auto smear = [&](Drawing_Target& target) { smudge(target, stamp, {0, 0}, {0, 1}); };
    EXPECT_EQ(drawn({"....", "####"}, {"##.#", "...."}, smear), (Art{"?..?", "####"}));
}

TEST(Pens, smudge_along_a_segment_pixel_by_pixel) {
    Tile tile(4, 1);
    tile.set_pixel(0, 0, {128, 64, 32});
    Drawing_Target target(tile);
    smudge_segment(target, pixel_brush(), {0, 0}, {0, 0});
    EXPECT_EQ(tile.get_pixel(0, 0), (Color{128, 64, 32}));
    smudge_segment(target, pixel_brush(), {0, 0}, {20000, 0});
    EXPECT_EQ(tile.get_pixel(1, 0), (Color{64, 32, 16}));
    EXPECT_EQ(tile.get_pixel(3, 0), (Color{16, 8, 4}));
}

} // namespace quadrelle::testing
