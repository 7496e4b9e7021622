#include "canvas/canvas_view.h"

#include <gtest/gtest.h>

#include <array>

namespace quadrelle {
namespace {

// No window is there: the view computes, but shows nothing.
class Canvas_View_Test : public ::testing::Test {
protected:
    void show(Tile& tile, int pixel_size) {
        view.set_tile(&tile);
        ASSERT_TRUE(view.set_pixel_size(pixel_size));
        view.centre();
    }

    Canvas_View view{10};
};

struct Centre_Case {
    Size tile;
    int pixel_size;
    Point origin;
};

TEST_F(Canvas_View_Test, centres_what_fits_and_shows_the_corner_of_what_does_not) {
    constexpr std::array cases{
        Centre_Case{{24, 24}, 10, {400, 200}}, Centre_Case{{24, 25}, 21, {268, 64}},
        Centre_Case{{1, 3}, 3, {518, 315}},    Centre_Case{{64, 64}, 8, {264, 64}},
        Centre_Case{{255, 10}, 3, {264, 305}}, Centre_Case{{73, 72}, 7, {264, 68}},
    };
    for (const Centre_Case& test : cases) {
        Tile tile(test.tile.width, test.tile.height);
        show(tile, test.pixel_size);
        EXPECT_EQ(view.origin(), test.origin) << test.tile.width << " x " << test.tile.height;
    }
}

TEST_F(Canvas_View_Test, cells_are_found_with_truncation_toward_zero) {
    struct Case {
        int x, column, nearest;
    };
    constexpr std::array cases{
        Case{385, -1, -1}, Case{386, -1, 0},  Case{390, -1, 0},     Case{391, 0, 0}, Case{399, 0, 0},
        Case{400, 0, 0},   Case{404, 0, 0},   Case{405, 0, 1},      Case{409, 0, 1}, Case{410, 1, 1},
        Case{639, 23, 24}, Case{640, 24, 24}, Case{-200, -60, -59},
    };
    Tile tile(24, 24);
    show(tile, 10);
    for (const Case& test : cases) {
        EXPECT_EQ(view.tile_column(test.x), test.column) << test.x;
        EXPECT_EQ(view.tile_row(test.x - 200), test.column) << test.x;
        EXPECT_EQ(view.nearest_column(test.x), test.nearest) << test.x;
        EXPECT_EQ(view.nearest_row(test.x - 200), test.nearest) << test.x;
    }
    EXPECT_EQ(view.tile_point({415, 239}), (Tile_Point{1, 3}));
}

// From the brush's corner to the pointer, half the brush without its first pixel.
TEST(Canvas_Settings, pointer_offset_centres_a_precise_brush) {
    struct Case {
        int size_index, pixel_size, offset;
    };
    Tool_State tools;
    Canvas_Settings settings;
    for (const Case& test : {Case{0, 10, 0}, {1, 10, 5}, {2, 10, 10}, {1, 3, 1}, {5, 21, 52}}) {
        tools.chosen_brush.select_size(test.size_index);
        EXPECT_EQ(pointer_offset(tools, settings, test.pixel_size), (Point{test.offset, test.offset}));
    }
    settings.brush_outline = Brush_Outline::off;
    EXPECT_EQ(pointer_offset(tools, settings, 10), Point{});
}

} // namespace
} // namespace quadrelle
