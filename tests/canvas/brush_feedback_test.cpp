#include "canvas/brush_feedback.h"

#include "color/standard_colors.h"
#include "color/translucency.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quadrelle {
namespace {

constexpr Color grey(128, 128, 128);

// '.' is what was there, '#' the line, 'o' the preview.
std::vector<std::string> painted(Brush_Feedback feedback, const Brush& brush, int pixel_size, Size size) {
    std::vector<Color> pixels(static_cast<std::size_t>(size.width * size.height), grey);
    feedback.brush = &brush;
    feedback.tile = {0, 0, size.width, size.height};
    paint_brush_feedback(feedback, pixel_size,
                         {pixels.data(), static_cast<std::ptrdiff_t>(sizeof(Color)) * size.width, size});
    std::vector<std::string> rows;
    for (int y = 0; y < size.height; ++y) {
        std::string row;
        for (int x = 0; x < size.width; ++x) {
            const Color pixel = pixels.at(static_cast<std::size_t>(y * size.width + x));
            row += pixel == grey ? '.' : pixel == Color(200, 0, 0) ? 'o' : '#';
        }
        rows.push_back(row);
    }
    return rows;
}

TEST(Brush_Feedback, outline_runs_around_the_set_pixels_and_covers_none_of_them) {
    const Brush plus = built_in_brush(Brush_Shape::disc, 2, grey);
    const std::vector<std::string> expected{
        "...####...", "...#..#...", "...#..#...", "####..####", "#........#",
        "#........#", "####..####", "...#..#...", "...#..#...", "...####...",
    };
    EXPECT_EQ(painted({.outline = Point{1, 1}}, plus, 3, {10, 10}), expected);
    // Where two set pixels meet in a corner the line crosses itself, once.
    const Brush diagonal = built_in_brush(Brush_Shape::falling_diagonal, 2, grey);
    EXPECT_EQ(painted({.outline = Point{1, 1}}, diagonal, 3, {10, 10})[3], "#######...");
}

TEST(Brush_Feedback, preview_fills_the_cells_that_would_be_painted) {
    const Brush ring = built_in_brush(Brush_Shape::ring, 2, Color(0, 0, 200));
    const std::vector<std::string> expected{"..oo..", "..oo..", "oo..oo", "oo..oo", "..oo..", "..oo.."};
    EXPECT_EQ(painted({.preview = Point{0, 0}, .color = Color(200, 0, 0)}, ring, 2, {6, 6}), expected);
    EXPECT_EQ(painted({.preview = Point{0, 0}}, ring, 2, {6, 6})[0], "..##..") << "its own colour";
}

TEST(Brush_Feedback, preview_keeps_to_what_is_selected) {
    const Brush square = built_in_brush(Brush_Shape::square, 1, Color(200, 0, 0));
    Selection selection(Size{3, 3});
    selection.draw([](Drawing_Target& mask) { mask.plot({2, 1}, Selection::selected_color); });
    Brush_Feedback feedback{.preview = Point{2, 2}, .selection = &selection};
    const std::vector<std::string> expected{"......", "......", "....oo", "....oo", "......", "......"};
    EXPECT_EQ(painted(feedback, square, 2, {6, 6}), expected);
    feedback.brush = &square;
    feedback.tile = {0, 0, 6, 6};
    EXPECT_FALSE(feedback_area(feedback, 2).is_empty());
    feedback.preview = Point{0, 0};
    EXPECT_TRUE(feedback_area(feedback, 2).is_empty());
}

// It takes the place of what is there, also where it is translucent.
TEST(Brush_Feedback, preview_shows_the_checkerboard_through_what_is_painted) {
    constexpr Size size{6, 6};
    const Brush square = built_in_brush(Brush_Shape::square, 1, grey);
    for (const Color color : {Color(200, 0, 0, 0), Color(200, 0, 0, 90)}) {
        std::vector<Color> pixels(static_cast<std::size_t>(size.width * size.height), Color(0, 200, 0));
        const Brush_Feedback feedback{.brush = &square,
                                      .preview = Point{2, 2},
                                      .color = color,
                                      .tile = {0, 0, 4, 6},
                                      .checker = {1, 2}};
        paint_brush_feedback(feedback, 2, {pixels.data(), size.width * 4, size});
        const auto at = [&](int x, int y) { return pixels.at(static_cast<std::size_t>(y * size.width + x)); };
        EXPECT_EQ(at(2, 3), blended_over(color, standard_color(Standard_Color::checker_light)));
        EXPECT_EQ(at(3, 4), blended_over(color, standard_color(Standard_Color::checker_dark)));
        EXPECT_EQ(at(4, 4), Color(0, 200, 0)) << "beside the tile";
    }
}

TEST(Brush_Feedback, is_cut_to_the_picture) {
    const Brush square = built_in_brush(Brush_Shape::square, 5, Color(0, 0, 200));
    for (const Point corner : {Point{-100, 2}, Point{-5, -5}, Point{7, 7}, Point{2, 100}}) {
        static_cast<void>(painted({.outline = corner, .preview = corner}, square, 4, {8, 8}));
    }
    EXPECT_EQ(painted({.outline = Point{-3, -3}}, square, 1, {4, 4})[1], "..#.");
}

} // namespace
} // namespace quadrelle
