#include "tileset/bitmap_export.h"

#include "pixels/picture_formats.h"
#include "tests/support/files.h"
#include "tests/support/tiles.h"

#include <memory>

namespace quadrelle::testing {
namespace {

// Every tile another one, with every kind of alpha.
Color color_in_tile(int tile, int x, int y) {
    return {(tile * 5 + x) % 256, (y * 3 + tile) % 256, x * y % 256, (tile + x * 7 + y * 11) % 256};
}

std::unique_ptr<Tileset> make_tileset(Size tile_size, int count) {
    auto tileset = std::make_unique<Tileset>(tile_size);
    for (int i = 0; i < count; ++i) {
        auto tile = std::make_unique<Tile>(tile_size.width, tile_size.height);
        for (int y = 0; y < tile_size.height; ++y) {
            for (int x = 0; x < tile_size.width; ++x) {
                tile->set_pixel(x, y, color_in_tile(i, x, y));
            }
        }
        tileset->append_loaded(std::move(tile));
    }
    return tileset;
}

struct Export_Case {
    Size tile;
    int count;
};

TEST(Bitmap_Export, file_shows_sixteen_rows_of_tiles_and_black_cells_behind_them) {
    const std::vector<Export_Case> cases{{{24, 24}, 3}, {{64, 64}, 256}, {{24, 24}, 0},  {{6, 13}, 300},
                                         {{1, 1}, 17},  {{7, 6}, 16},    {{255, 3}, 40}, {{32, 16}, 1}};
    const Temporary_Folder folder;
    const std::string path = folder.path("tïles.bmp");
    for (const auto& [tile, count] : cases) {
        SCOPED_TRACE(tile.width * 1000 + count);
        ASSERT_TRUE(save_bitmap(export_picture(*make_tileset(tile, count)), path));
        const std::optional<Tile> shown = decode_bitmap(stored(path)).picture;
        ASSERT_EQ(shown.value().size(), (Size{16 * tile.width, 16 * tile.height}));
        Tile expected(shown->width(), shown->height());
        for (int y = 0; y < expected.height(); ++y) {
            for (int x = 0; x < expected.width(); ++x) {
                const int index = y / tile.height * 16 + x / tile.width;
                if (index < count) {
                    expected.set_pixel(x, y, color_in_tile(index, x % tile.width, y % tile.height));
                }
            }
        }
        EXPECT_EQ(picture_of(*shown), picture_of(expected));
    }
}

} // namespace
} // namespace quadrelle::testing
