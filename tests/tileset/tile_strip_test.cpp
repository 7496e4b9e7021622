#include "tileset/tile_strip.h"

#include "tileset/tileset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace quadrelle {
namespace {

constexpr int visible = 51;
constexpr int page = 46;

Tileset tileset_of(int count) {
    Tileset tileset({1, 1}, count);
    while (!tileset.is_full()) {
        tileset.add_tile();
    }
    return tileset;
}

TEST(Tile_Strip, pages_between_the_first_tile_and_the_last_ones) {
    for (int count = 0; count < 320; ++count) {
        SCOPED_TRACE(std::to_string(count) + " tiles");
        const Tileset tileset = tileset_of(count);
        const int last_first = std::max(count - visible, 0);
        Tile_Strip strip(tileset);
        strip.page_back();
        EXPECT_EQ(strip.first(), 0);
        for (int expected = 0; expected < last_first; expected = std::min(expected + page, last_first)) {
            EXPECT_EQ(strip.first(), expected);
            EXPECT_EQ(strip.is_at_end(), expected + visible >= count - 1);
            strip.page_forward();
        }
        EXPECT_EQ(strip.first(), last_first);
        strip.page_forward();
        EXPECT_EQ(strip.first(), last_first);
        EXPECT_TRUE(strip.is_at_end());
        EXPECT_EQ(strip.is_at_start(), count <= visible);
        strip.page_back();
        EXPECT_EQ(strip.first(), std::max(last_first - page, 0));
        strip.forward();
        EXPECT_EQ(strip.first(), last_first);
        strip.rewind();
        EXPECT_EQ(strip.first(), 0);
    }
}

TEST(Tile_Strip, knows_the_tile_in_a_cell) {
    for (const int count : {0, 1, 10, 51, 60, 200}) {
        const Tileset tileset = tileset_of(count);
        Tile_Strip strip(tileset);
        strip.page_forward();
        for (int cell = 0; cell < visible; ++cell) {
            const int index = strip.first() + cell;
            EXPECT_EQ(strip.tile_in(cell), index < count ? index : -1) << cell << " of " << count;
        }
    }
}

} // namespace
} // namespace quadrelle
