#include "tileset/tileset.h"

#include <gtest/gtest.h>

namespace quadrelle {
namespace {

TEST(Tileset, without_tiles_refuses_all_but_adding) {
    Tileset tileset({4, 4});
    EXPECT_EQ(tileset.current_tile(), nullptr);
    EXPECT_FALSE(tileset.next());
    EXPECT_FALSE(tileset.previous());
    EXPECT_FALSE(tileset.delete_current());
    EXPECT_FALSE(tileset.swap_tiles(0, 1));
    tileset.select(3);
    EXPECT_EQ(tileset.current_index(), 0);
    EXPECT_EQ(tileset.current_pixel(0, 0), (Color{255, 0, 255, 0}));
    tileset.resize_all({5, 6});
    EXPECT_TRUE(tileset.insert_copy_after(Tile(2, 2)));
    EXPECT_EQ(tileset.current_tile()->size(), (Size{5, 6}));
}

TEST(Tileset, takes_loaded_tiles_past_its_limit_and_then_refuses_more) {
    Tileset tileset({1, 1}, 2);
    for (int i = 0; i < 3; ++i) {
        tileset.append_loaded(std::make_unique<Tile>(1, 1));
    }
    EXPECT_EQ(tileset.count(), 3);
    EXPECT_EQ(tileset.current_index(), 0);
    EXPECT_FALSE(tileset.add_tile());
    EXPECT_FALSE(tileset.insert_tile());
    EXPECT_FALSE(tileset.insert_copy_after(tileset.tile_at(0)));
    EXPECT_EQ(tileset.count(), 3);
}

TEST(Tileset, resizes_every_tile_and_selects_the_first) {
    Tileset tileset({24, 24});
    for (int i = 0; i < 3; ++i) {
        tileset.add_tile();
        tileset.current_tile()->fill({40 * i, 0, 99});
    }
    tileset.resize_all({10, 60});
    EXPECT_EQ(tileset.current_index(), 0);
    EXPECT_EQ(tileset.tile_size(), (Size{10, 60}));
    EXPECT_EQ(tileset.total_bytes(), 3 * 10 * 60 * 4);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(tileset.tile_at(i).size(), (Size{10, 60}));
        EXPECT_NEAR(tileset.tile_at(i).get_pixel(9, 59).r, 40 * i, 1);
    }
}

} // namespace
} // namespace quadrelle
