#include "canvas/canvas_painter.h"

#include "color/standard_colors.h"
#include "color/translucency.h"
#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

constexpr Color across(255, 0, 1);
constexpr Color down(255, 0, 2);

std::vector<Color> composed(const Canvas_Picture& picture, Size size) {
    std::vector<Color> pixels(static_cast<std::size_t>(size.width * size.height), Color(1, 2, 3, 4));
    Canvas_Painter().paint(picture, {pixels.data(), size.width * 4, size});
    return pixels;
}

// Pixel by pixel: the checkerboard, the tile over it, the lines of the grid over both.
Color expected_at(const Canvas_Picture& picture, Point at) {
    const int x = at.x - picture.origin.x;
    const int y = at.y - picture.origin.y;
    const int edge = picture.pixel_size;
    const Tile_Point cell{x / edge, y / edge};
    if (x < 0 || y < 0 || picture.tile->is_outside(cell.x, cell.y)) {
        return picture.surround;
    }
    const bool is_light = (cell.x / picture.checker.width + cell.y / picture.checker.height) % 2 == 1;
    const Color pixel = picture.tile->get_pixel(cell.x, cell.y);
    const Color shown = blended_over(
        pixel, standard_color(is_light ? Standard_Color::checker_light : Standard_Color::checker_dark));
    const bool is_grid = x % edge == edge - 1 || y % edge == edge - 1;
    return is_grid ? blended_over(grid_color(pixel, picture.grid_intensity), shown) : shown;
}

TEST(Canvas_Painter, paints_what_each_pixel_of_the_window_has_to_show) {
    constexpr Size viewport{96, 80};
    const Tile tile = random_tile({9, 7}, 7);
    Canvas_Picture picture;
    picture.tile = &tile;
    picture.grid_intensity = 64;
    picture.checker = {2, 3};
    picture.surround = standard_color(Standard_Color::dark_frame);
    for (const int pixel_size : {3, 8, 13, 32}) {
        for (const Point origin : {Point{5, 4}, Point{0, 0}, Point{-4, -17}, Point{90, 70}, Point{-1, 79},
                                   Point{96, 80}, Point{-300, 5}, Point{3, -2000}}) {
            picture.pixel_size = pixel_size;
            picture.origin = origin;
            const std::vector<Color> pixels = composed(picture, viewport);
            for (int i = 0; i < viewport.width * viewport.height; ++i) {
                const Point at{i % viewport.width, i / viewport.width};
                ASSERT_EQ(pixels[static_cast<std::size_t>(i)], expected_at(picture, at))
                    << at.x << ", " << at.y << " with pixel size " << pixel_size << ", origin " << origin.x
                    << ", " << origin.y;
            }
        }
    }
}

TEST(Canvas_Painter, shows_the_surround_without_a_tile_or_without_pixels) {
    const Tile empty(0, 5);
    const Tile flat(5, 0);
    Canvas_Picture picture;
    picture.surround = Color(10, 20, 30);
    const Cell_Marker marker{{1, 1}, {across}};
    picture.column_marker = &marker;
    picture.row_marker = &marker;
    for (const Tile* tile : {static_cast<const Tile*>(nullptr), &empty, &flat}) {
        picture.tile = tile;
        for (const Color pixel : composed(picture, {20, 20})) {
            ASSERT_EQ(pixel, picture.surround);
        }
    }
}

TEST(Canvas_Painter, grid_contrasts_with_the_pixel_and_vanishes_at_intensity_0) {
    EXPECT_EQ(grid_color(Color(0, 0, 0), 64), Color(64, 64, 64));
    EXPECT_EQ(grid_color(Color(255, 255, 255), 64), Color(191, 191, 191));
    EXPECT_EQ(grid_color(Color(12, 200, 90), 0), Color(12, 200, 90));
}

// Lines of one pixel without gaps.
const Cell_Marker lying{{4, 1}, std::vector<Color>(4, across)};
const Cell_Marker standing{{1, 4}, std::vector<Color>(4, down)};
const Cell_Edges edges{{lying, lying}, {standing, standing}};

class Selection_Picture : public ::testing::Test {
protected:
    Selection_Picture() {
        for (const Tile_Point to : {Tile_Point{3, 2}, {2, 3}}) {
            selection.combine(selected_rectangle(tile.size(), {1, 1}, to), Selection_Change::add);
        }
        picture.tile = &tile;
        picture.pixel_size = 4;
    }

    // '-' and '|' for the lines, '.' for every other pixel.
    [[nodiscard]] Art lines(Size size) const {
        Art rows(static_cast<std::size_t>(size.height));
        const std::vector<Color> pixels = composed(picture, size);
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const char mark = pixels[i] == across ? '-' : pixels[i] == down ? '|' : '.';
            rows[i / static_cast<std::size_t>(size.width)] += mark;
        }
        return rows;
    }

    // The selected cells are (1, 1), (2, 1) and (1, 2).
    Tile tile{4, 4};
    Selection selection{Size{4, 4}};
    Canvas_Picture picture;
};

TEST_F(Selection_Picture, a_line_runs_inside_the_selected_cells_along_all_others) {
    picture.outlines = {{&selection, &edges}};
    picture.origin = {-3, -3};
    EXPECT_EQ(lines({10, 10}), (Art{"..........", ".|------|.", ".|......|.", ".|......|.", ".|...---|.",
                                    ".|..|.....", ".|..|.....", ".|..|.....", ".|--|.....", ".........."}));
    // Cut off by the viewport, and along the tile's own edge.
    picture.origin = {-7, -12};
    selection.clear();
    selection.invert();
    EXPECT_EQ(lines({6, 5}), (Art{"......", "......", "......", "------", "......"}));
}

TEST_F(Selection_Picture, only_what_is_not_selected_is_dimmed) {
    tile.fill(Color(10, 10, 10));
    for (const int pixel_size : {3, 10, 32}) {
        picture.pixel_size = pixel_size;
        picture.selection = nullptr;
        const Size size{4 * pixel_size, 4 * pixel_size};
        const std::vector<Color> plain = composed(picture, size);
        picture.selection = &selection;
        const std::vector<Color> dimmed = composed(picture, size);
        for (int i = 0; i < size.width * size.width; ++i) {
            const Tile_Point cell{i % size.width / pixel_size, i / size.width / pixel_size};
            const auto at = static_cast<std::size_t>(i);
            EXPECT_EQ(dimmed[at] == plain[at], selection.contains(cell)) << i << ", size " << pixel_size;
        }
    }
}

// Translucent, hanging over, and plotted: what was shown is what comes out.
TEST_F(Selection_Picture, a_paste_shows_as_it_will_be_when_plotted) {
    Tile floating(3, 3);
    for (int i = 0; i < 9; ++i) {
        floating.set_pixel_at(i, {20 * i, 255 - 20 * i, 99, i == 4 ? 0 : 31 * i});
    }
    tile.set_pixel(3, 1, {0, 0, 200, 128});
    const Floating_Paste paste{floating, {2, -1}};
    picture.paste = &paste;
    const std::vector<Color> shown = composed(picture, {16, 16});
    Tile plotted(tile);
    Drawing_Target target(plotted);
    paste.plot(target);
    EXPECT_NE(picture_of(plotted), picture_of(tile));
    picture.paste = nullptr;
    picture.tile = &plotted;
    EXPECT_EQ(composed(picture, {16, 16}), shown);
}

} // namespace
} // namespace quadrelle::testing
