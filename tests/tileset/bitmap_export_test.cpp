#include "tileset/bitmap_export.h"

#include "base/platform_files.h"
#include "tests/support/files.h"

#include <SDL3/SDL.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quadrelle::testing {
namespace {

using Surface_Handle = std::unique_ptr<SDL_Surface, void (*)(SDL_Surface*)>;

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

    [[nodiscard]] Color expected_at(int x, int y) const {
        const int index = y / tile.height * 16 + x / tile.width;
        return index < count ? color_in_tile(index, x % tile.width, y % tile.height) : Color(0, 0, 0, 255);
    }
};

// How many pixels of the file, as the library reads it, are not as expected; -1 when it has another size.
int differing_pixels(const std::string& path, const Export_Case& test) {
    const Surface_Handle read(SDL_LoadBMP(path.c_str()), SDL_DestroySurface);
    if (!read || read->w != 16 * test.tile.width || read->h != 16 * test.tile.height) {
        return -1;
    }
    const Surface_Handle picture(SDL_ConvertSurface(read.get(), SDL_PIXELFORMAT_ARGB8888),
                                 SDL_DestroySurface);
    int differing = 0;
    for (int y = 0; y < picture->h; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(
            static_cast<const std::byte*>(picture->pixels) + y * picture->pitch);
        for (int x = 0; x < picture->w; ++x) {
            differing += row[x] != test.expected_at(x, y).word() ? 1 : 0;
        }
    }
    return differing;
}

TEST(Bitmap_Export, file_shows_sixteen_rows_of_tiles_and_black_cells_behind_them) {
    const std::vector<Export_Case> cases{{{24, 24}, 3}, {{64, 64}, 256}, {{24, 24}, 0},  {{6, 13}, 300},
                                         {{1, 1}, 17},  {{7, 6}, 16},    {{255, 3}, 40}, {{32, 16}, 1}};
    const Temporary_Folder folder;
    for (const Export_Case& test : cases) {
        SCOPED_TRACE(test.tile.width * 1000 + test.count);
        const auto tileset = make_tileset(test.tile, test.count);
        const std::string path = folder.path("tïles.bmp");
        EXPECT_TRUE(save_bitmap(export_picture(*tileset), path));
        EXPECT_EQ(differing_pixels(path, test), 0);
    }
}

int operations_left = 0;

TEST(Bitmap_Export, write_that_fails_anywhere_leaves_the_old_file) {
    const Temporary_Folder folder;
    const std::string path = folder.path("old.bmp");
    const Export_Case test{{24, 24}, 3};
    const Tile picture = export_picture(*make_tileset(test.tile, test.count));
    const Bytes old{'o', 'l', 'd'};
    store(path, old);
    int failures = 0;
    for (bool is_saved = false; !is_saved;) {
        operations_left = failures;
        set_file_fault_hook([] { return operations_left-- <= 0; });
        is_saved = save_bitmap(picture, path);
        set_file_fault_hook(nullptr);
        EXPECT_EQ(folder.entry_count(), 1);
        if (!is_saved) {
            ++failures;
            EXPECT_EQ(stored(path), old);
        }
        ASSERT_LT(failures, 100);
    }
    EXPECT_GT(failures, 3);
    EXPECT_EQ(differing_pixels(path, test), 0);
    EXPECT_FALSE(save_bitmap(picture, folder.path("no folder/new.bmp")));
}

} // namespace
} // namespace quadrelle::testing
