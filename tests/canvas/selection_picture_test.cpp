// What the canvas shows of selections and pastes, as pictures.

#include "canvas/canvas_painter.h"
#include "tests/support/tiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quadrelle::testing {
namespace {

constexpr Color dark(10, 10, 10);
constexpr Color across(255, 0, 1);
constexpr Color down(255, 0, 2);

// Lines of one pixel without gaps, longer than two cells.
const Cell_Edges edges{{{8, 1}, std::vector<Color>(8, across)}, {{1, 8}, std::vector<Color>(8, down)}};

std::vector<Color> composed(const Canvas_Picture& picture, Size size) {
    std::vector<Color> pixels(static_cast<std::size_t>(size.width * size.height));
    Canvas_Painter().paint(picture, {pixels.data(), size.width * 4, size});
    return pixels;
}

// '-' and '|' for the lines, '.' for every other pixel.
Art lines(const Canvas_Picture& picture, Size size) {
    Art rows(static_cast<std::size_t>(size.height));
    const std::vector<Color> pixels = composed(picture, size);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        rows[i / static_cast<std::size_t>(size.width)] += pixels[i] == across ? '-'
                                                          : pixels[i] == down ? '|'
                                                                              : '.';
    }
    return rows;
}

class Selection_Picture : public ::testing::Test {
protected:
    Selection_Picture() {
        tile.fill(dark);
        for (const Tile_Point to : {Tile_Point{3, 2}, {2, 3}}) {
            selection.combine(selected_rectangle(tile.size(), {1, 1}, to), Selection_Change::add);
        }
        picture.tile = &tile;
        picture.pixel_size = 4;
    }

    // The selected cells are (1, 1), (2, 1) and (1, 2).
    Tile tile{4, 4};
    Selection selection{Size{4, 4}};
    Canvas_Picture picture;
};

TEST_F(Selection_Picture, a_line_runs_inside_the_selected_cells_along_all_others) {
    picture.outlines = {{&selection, &edges}};
    EXPECT_EQ(lines(picture, {16, 16}), (Art{
                                            "................", //
                                            "................", //
                                            "................", //
                                            "................", //
                                            "....|------|....", //
                                            "....|......|....", //
                                            "....|......|....", //
                                            "....|...---|....", //
                                            "....|..|........", //
                                            "....|..|........", //
                                            "....|..|........", //
                                            "....|--|........", //
                                            "................", //
                                            "................", //
                                            "................", //
                                            "................", //
                                        }));
    // Cut off by the viewport, and along the tile's own edge.
    picture.origin = {-7, -5};
    selection.clear();
    selection.invert();
    EXPECT_EQ(lines(picture, {6, 12}), (Art{
                                           "......", //
                                           "......", //
                                           "......", //
                                           "......", //
                                           "......", //
                                           "......", //
                                           "......", //
                                           "......", //
                                           "......", //
                                           "......", //
                                           "------", //
                                           "......", //
                                       }));
}

TEST_F(Selection_Picture, only_what_is_not_selected_is_dimmed) {
    for (const int pixel_size : {3, 10, 32}) {
        picture.pixel_size = pixel_size;
        picture.selection = nullptr;
        const Size size{4 * pixel_size, 4 * pixel_size};
        const std::vector<Color> plain = composed(picture, size);
        picture.selection = &selection;
        const std::vector<Color> dimmed = composed(picture, size);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                const auto i = static_cast<std::size_t>(y * size.width + x);
                EXPECT_EQ(dimmed[i] == plain[i], selection.contains({x / pixel_size, y / pixel_size}))
                    << x << ", " << y << " with cells of " << pixel_size;
            }
        }
    }
}

// Translucent, hanging over, and plotted: what was shown is what comes out.
TEST_F(Selection_Picture, a_paste_shows_as_it_will_be_when_plotted) {
    Floating_Paste paste{Tile(3, 3), {2, -1}};
    for (int i = 0; i < 9; ++i) {
        paste.picture.set_pixel_at(i, {20 * i, 255 - 20 * i, 99, i == 4 ? 0 : 31 * i});
    }
    tile.set_pixel(3, 1, {0, 0, 200, 128});
    picture.paste = &paste;
    const std::vector<Color> shown = composed(picture, {16, 16});
    Tile plotted(tile);
    Drawing_Target target(plotted);
    paste.plot(target);
    EXPECT_FALSE(std::ranges::equal(plotted.pixels(), tile.pixels()));
    picture.paste = nullptr;
    picture.tile = &plotted;
    EXPECT_EQ(composed(picture, {16, 16}), shown);
}

} // namespace
} // namespace quadrelle::testing
