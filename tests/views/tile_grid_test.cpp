#include "views/tile_grid.h"

#include "screen/screen.h"
#include "tests/support/window_test.h"
#include "tileset/tileset.h"

namespace quadrelle::testing {
namespace {

constexpr Point corner{16, 16};
constexpr int edge = 32;

class Tile_Grid_Test : public Window_Test {
protected:
    static Tileset set_of(Size tile_size, int count) {
        Tileset tileset(tile_size);
        for (int i = 0; i < count; ++i) {
            tileset.append_loaded(std::make_unique<Tile>(tile_size.width, tile_size.height));
        }
        return tileset;
    }

    static void expect_cell(const Tile_Grid& grid, Point cell, int tile) {
        SCOPED_TRACE(tile);
        const Point start{corner.x + cell.x * edge, corner.y + cell.y * edge};
        for (const Point inside : {Point{0, 0}, Point{edge - 1, 0}, Point{0, edge - 1}, Point{13, 21},
                                   Point{edge - 1, edge - 1}}) {
            EXPECT_EQ(grid.tile_at({start.x + inside.x, start.y + inside.y}), tile);
        }
    }
};

} // namespace

TEST_F(Tile_Grid_Test, finds_the_tile_under_every_cell_of_every_page_and_none_beyond) {
    for (const int count : {0, 1, 17, 256, 257, 300, 512}) {
        SCOPED_TRACE(count);
        const Tileset tileset = set_of({2, 2}, count);
        Tile_Grid grid("Grid", tileset);
        const int pages = count <= 256 ? 1 : 2;
        EXPECT_EQ(grid.page_count(), pages);
        for (int page = 0; page < pages; ++page) {
            grid.set_page(page);
            int tile = 256 * page;
            for (int row = 0; row < 16; ++row) {
                for (int column = 0; column < 16; ++column, ++tile) {
                    expect_cell(grid, {column, row}, tile < count ? tile : -1);
                }
            }
        }
        for (const Point outside : {Point{15, 16}, Point{16, 15}, Point{528, 16}, Point{16, 528},
                                    Point{-20, -20}, Point{1000, 100}}) {
            EXPECT_EQ(grid.tile_at(outside), -1);
        }
        grid.set_page(99);
        EXPECT_EQ(grid.page(), pages - 1);
        grid.set_page(-1);
        EXPECT_EQ(grid.page(), 0);
        grid.show_page_of(count - 1);
        EXPECT_EQ(grid.page(), pages - 1);
    }
}

TEST_F(Tile_Grid_Test, draws_no_marker_outside_of_its_cells) {
    const Tileset tileset = set_of({2, 2}, 300);
    Tile_Grid grid("Grid", tileset);
    grid.draw("");
    const Color below = pixel_at({corner.x, corner.y + 16 * edge});
    const Color right = pixel_at({corner.x + 16 * edge, corner.y});
    grid.draw_marker(Sprite::first_big_marker, 0, 16);
    grid.draw_marker(Sprite::first_big_marker, 16, 0);
    grid.draw_marker(Sprite::first_big_marker, 15, 15);
    EXPECT_EQ(pixel_at({corner.x, corner.y + 16 * edge}), below);
    EXPECT_EQ(pixel_at({corner.x + 16 * edge, corner.y}), right);
    EXPECT_EQ(pixel_at({corner.x + 15 * edge, corner.y + 15 * edge}), Color(255, 255, 255));
}

} // namespace quadrelle::testing
