#include "tools/drawing_target.h"

#include "tests/support/tile_art.h"

#include <gtest/gtest.h>

namespace quadrelle {

using testing::Art;
using testing::art;
using testing::art_color;
using testing::make_tile;

namespace {

// Plots on every position in and one pixel around the target.
void flood(Drawing_Target target) {
    for (int y = -1; y <= target.size().height; ++y) {
        for (int x = -1; x <= target.size().width; ++x) {
            target.plot({x, y}, art_color('z'));
        }
    }
}

} // namespace

TEST(Drawing_Target, plots_inside_the_tile_only) {
    Tile tile = make_tile({"ab", "cd"});
    flood(Drawing_Target(tile));
    EXPECT_EQ(art(tile), (Art{"zz", "zz"}));
}

TEST(Drawing_Target, plots_inside_an_active_selection_only) {
    const Tile mask = make_tile({"#.", " #"});
    Tile tile = make_tile({"ab", "cd"});
    flood({tile, mask});
    EXPECT_EQ(art(tile), (Art{"zb", "cz"}));
    Drawing_Target target(tile, mask);
    target.set_selection_active(false);
    flood(target);
    EXPECT_EQ(art(tile), (Art{"zz", "zz"}));
    EXPECT_EQ(target.get({2, 0}), (Color{255, 0, 255, 0}));
}

TEST(Drawing_Target, needs_a_mask_for_a_selection) {
    Tile tile = make_tile({"a"});
    Drawing_Target target(tile);
    target.set_selection_active(true);
    target.plot({0, 0}, art_color('z'));
    EXPECT_EQ(art(tile), (Art{"z"}));
}

} // namespace quadrelle
