#include "tileset/picture_tiles.h"

#include "tests/support/tiles.h"
#include "tileset/grid_guess.h"

namespace quadrelle::testing {
namespace {

// Each tile another picture; transparent around.
Tile sheet_of(const Picture_Grid& grid, Size cells, int beside = 0) {
    const Point end = grid.corner(cells.width, cells.height);
    Tile sheet(end.x - grid.spacing + grid.margin + beside, end.y - grid.spacing + grid.margin + beside);
    sheet.fill({0, 0, 0, 0});
    for (int i = 0; i < cells.width * cells.height; ++i) {
        const Point corner = grid.corner(i % cells.width, i / cells.width);
        random_tile(grid.tile, static_cast<unsigned>(i + 1)).paste_into(sheet, corner.x, corner.y);
    }
    return sheet;
}

TEST(Picture_Tiles, come_out_as_they_went_in) {
    for (const Picture_Grid& grid :
         {Picture_Grid{{16, 16}, 0, 0}, Picture_Grid{{5, 9}, 0, 0}, Picture_Grid{{24, 7}, 3, 0},
          Picture_Grid{{8, 8}, 0, 2}, Picture_Grid{{4, 255}, 1, 5}}) {
        for (const int beside : {0, 3}) {
            const Tile sheet = sheet_of(grid, {4, 3}, beside);
            const Cut_Plan plan = plan_cut(sheet, {grid, Skip::yes, Skip::yes});
            EXPECT_EQ(plan.cells, (Size{4, 3}));
            const Tileset tileset = cut_tiles(sheet, grid, plan);
            ASSERT_EQ(tileset.count(), 12);
            for (int i = 0; i < 12; ++i) {
                EXPECT_TRUE(
                    tileset.tile_at(i).same_pixels(random_tile(grid.tile, static_cast<unsigned>(i + 1))))
                    << i;
            }
        }
    }
}

TEST(Picture_Tiles, empty_and_equal_ones_are_left_out_where_that_is_wanted) {
    Tile sheet(8 * 6, 8);
    sheet.fill({9, 9, 9, 0});
    const Tile face = random_tile({8, 8}, 1);
    for (const int x : {8, 24, 32}) {
        face.paste_into(sheet, x, 0);
    }
    sheet.set_pixel(32, 0, {1, 2, 3});
    using enum Cell_Fate;
    for (const auto& [skip_empty, skip_equal, expected] :
         {std::tuple{Skip::no, Skip::no, std::vector{taken, taken, taken, taken, taken, taken}},
          std::tuple{Skip::yes, Skip::no, std::vector{empty, taken, empty, taken, taken, empty}},
          std::tuple{Skip::no, Skip::yes, std::vector{taken, taken, equal, equal, taken, equal}},
          std::tuple{Skip::yes, Skip::yes, std::vector{empty, taken, empty, equal, taken, empty}}}) {
        const Cut_Plan plan = plan_cut(sheet, {{{8, 8}}, skip_empty, skip_equal});
        EXPECT_EQ(plan.fates, expected);
        EXPECT_EQ(plan.taken, std::ranges::count(expected, taken));
        EXPECT_EQ(plan.empty, std::ranges::count(expected, empty));
        EXPECT_EQ(plan.equal, std::ranges::count(expected, equal));
    }
}

TEST(Picture_Tiles, more_than_a_set_holds_are_counted) {
    const Picture_Grid grid{{4, 4}};
    const Tile sheet = sheet_of(grid, {20, 15});
    const Cut_Plan plan = plan_cut(sheet, {grid, Skip::yes, Skip::yes});
    EXPECT_EQ(plan.taken, 256);
    EXPECT_EQ(plan.beyond, 44);
    EXPECT_EQ(cut_tiles(sheet, grid, plan).count(), 256);
    EXPECT_EQ(plan_cut(sheet, {{{81, 4}}, Skip::no, Skip::no}).taken, 0);
}

// A figure that leaves the outermost pixels of its cell transparent.
Tile figures(Size cells, int edge) {
    Tile sheet(cells.width * edge, cells.height * edge);
    sheet.fill({0, 0, 0, 0});
    Tile figure(edge - 2, edge - 1);
    figure.fill({1, 2, 3});
    for (int i = 0; i < cells.width * cells.height; ++i) {
        figure.paste_into(sheet, i % cells.width * edge + 1, i / cells.width * edge + 1);
    }
    return sheet;
}

TEST(Grid_Guess, finds_gaps_then_borders_then_usual_sizes) {
    for (const Picture_Grid& grid : {Picture_Grid{{16, 16}, 0, 1}, Picture_Grid{{16, 16}, 1, 2},
                                     Picture_Grid{{24, 10}, 2, 3}, Picture_Grid{{33, 48}, 0, 8}}) {
        EXPECT_EQ(guess_grid(sheet_of(grid, {5, 3})), grid) << grid.tile.width;
    }
    EXPECT_EQ(guess_grid(sheet_of({{18, 18}, 0, 2}, {4, 1})), (Picture_Grid{{18, 18}, 0, 2}));
    EXPECT_EQ(guess_grid(figures({4, 2}, 32)), (Picture_Grid{{32, 32}}));
    EXPECT_EQ(guess_grid(figures({8, 8}, 20)), (Picture_Grid{{20, 20}}));
    for (const auto& [picture, tile] :
         {std::pair{Size{128, 64}, Size{16, 16}}, std::pair{Size{512, 512}, Size{32, 32}},
          std::pair{Size{1024, 1024}, Size{64, 64}}, std::pair{Size{8192, 64}, Size{64, 64}},
          std::pair{Size{120, 24}, Size{24, 24}}, std::pair{Size{32, 32}, Size{32, 32}},
          std::pair{Size{72, 120}, Size{24, 24}}, std::pair{Size{40, 56}, Size{8, 8}},
          std::pair{Size{77, 99}, Size{11, 11}}, std::pair{Size{31, 45}, Size{31, 45}},
          std::pair{Size{101, 997}, Size{16, 16}}, std::pair{Size{1, 1}, Size{16, 16}}}) {
        EXPECT_EQ(guess_grid(Tile(picture.width, picture.height)), (Picture_Grid{tile})) << picture.width;
    }
}

} // namespace
} // namespace quadrelle::testing
