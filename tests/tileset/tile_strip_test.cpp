#include "tileset/tile_strip.h"

#include "tileset/tileset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace quadrelle {
namespace {

constexpr int visible = 51;

Tileset tileset_of(int count) {
    Tileset tileset({1, 1}, count);
    while (!tileset.is_full()) {
        tileset.add_tile();
    }
    return tileset;
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
