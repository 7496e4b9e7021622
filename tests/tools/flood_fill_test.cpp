#include "tools/flood_fill.h"

#include "tests/support/tiles.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include <gtest/gtest.h>

#include <random>

namespace quadrelle::testing {
namespace {

Art filled(const Art& before, Tile_Point seed) {
    return drawn(before, [&](Drawing_Target& target) { flood_fill(target, seed, art_color('z')); });
}

// Scans the whole grid once a wave: slow, and plainly what a fill means.
class Slow_Fill {
public:
    Slow_Fill(const Tile& tile, const Tile* mask, Tile_Point seed)
        : width_(tile.width()), height_(tile.height()) {
        for (int i = 0; i < tile.pixel_count(); ++i) {
            const bool is_selected = mask == nullptr || mask->is_white_at(i % width_, i / width_);
            const bool is_equal = tile.get_pixel_at(i) == tile.get_pixel(seed.x, seed.y);
            cells_.push_back(is_selected && is_equal ? 0 : 10000);
        }
        if (tile.is_outside(seed.x, seed.y) || cell(seed.x, seed.y) != 0) {
            return;
        }
        cell(seed.x, seed.y) = 1;
        for (int wave = 1; wave <= 9999 && scan(wave); ++wave) {}
    }
    void paint(Tile& tile, Color color) const {
        for (int i = 0; i < tile.pixel_count(); ++i) {
            const int value = cells_[static_cast<std::size_t>(i)];
            if (value >= 1 && value <= 9999) {
                tile.set_pixel_at(i, color);
            }
        }
    }

private:
    int& cell(int x, int y) { return cells_[static_cast<std::size_t>(x + y * width_)]; }
    bool scan(int wave) {
        bool has_set = false;
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (cell(x, y) == wave) {
                    has_set |= reach(x - 1, y, wave) | reach(x, y - 1, wave) | reach(x + 1, y, wave) |
                               reach(x, y + 1, wave);
                }
            }
        }
        return has_set;
    }
    bool reach(int x, int y, int wave) {
        const bool is_open = x >= 0 && y >= 0 && x < width_ && y < height_ && cell(x, y) == 0;
        if (is_open) {
            cell(x, y) = wave + 1;
        }
        return is_open;
    }

    int width_;
    int height_;
    std::vector<int> cells_;
};

// Rows joined at alternate ends: from the top left, one way through all of them.
Tile serpentine(int width, int height) {
    Tile tile(width, height);
    for (int y = 1; y < height; y += 2) {
        for (int x = 0; x < width; ++x) {
            const bool is_joint = x == (y % 4 == 1 ? width - 1 : 0);
            tile.set_pixel(x, y, is_joint ? art_color('.') : art_color('#'));
        }
    }
    return tile;
}

double milliseconds(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

TEST(Flood_Fill, fills_the_area_of_one_colour) {
    EXPECT_EQ(filled({"a.b", "..b", "bb."}, {1, 1}), (Art{"azb", "zzb", "bb."}));
    EXPECT_EQ(filled({"a.b", "..b", "bb."}, {2, 2}), (Art{"a.b", "..b", "bbz"}));
    EXPECT_EQ(filled({"a.b", "..b", "bb."}, {0, 0}), (Art{"z.b", "..b", "bb."}));
    EXPECT_EQ(filled({"zz.", "z.z"}, {0, 0}), (Art{"zz.", "z.z"}));
    EXPECT_EQ(filled({"."}, {0, 0}), (Art{"z"}));
    for (const Tile_Point outside : {Tile_Point{-1, 0}, {0, 3}, {3, 0}, {0, -1}, {1 << 30, -(1 << 30)}}) {
        EXPECT_EQ(filled({"a.b", "..b", "bb."}, outside), (Art{"a.b", "..b", "bb."}));
    }
}

TEST(Flood_Fill, tells_transparent_black_from_opaque_black) {
    EXPECT_EQ(filled({"   ", "...", "   "}, {0, 0}), (Art{"zzz", "...", "   "}));
    EXPECT_EQ(filled({"   ", "...", "   "}, {2, 1}), (Art{"   ", "zzz", "   "}));
}

TEST(Flood_Fill, does_not_leak_through_what_is_not_selected) {
    const Art selection{"## ##", "## ##"};
    const auto fill_at = [&](Tile_Point seed, Flood_Bounds bounds) {
        return drawn({".....", "....a"}, selection,
                     [&](Drawing_Target& target) { flood_fill(target, seed, art_color('z'), bounds); });
    };
    EXPECT_EQ(fill_at({0, 0}, Flood_Bounds::selection), (Art{"zz...", "zz..a"}));
    EXPECT_EQ(fill_at({2, 0}, Flood_Bounds::selection), (Art{".....", "....a"}));
    // The area ignores the selection, what is painted does not.
    EXPECT_EQ(fill_at({0, 0}, Flood_Bounds::whole_tile), (Art{"zz.zz", "zz.za"}));
    EXPECT_EQ(fill_at({2, 0}, Flood_Bounds::whole_tile), (Art{"zz.zz", "zz.za"}));
}

TEST(Flood_Fill, stamps_a_wallpaper_with_a_corner_on_the_seed) {
    const Brush stamp = stamp_brush(make_tile({"abc", "def"}), make_tile({"###", "#.#"}));
    const Art before{".....x", ".xxx..", "......"};
    EXPECT_EQ(drawn(before,
                    [&](Drawing_Target& target) {
                        flood_fill_with_brush(target, {4, 1}, stamp);
                    }),
              (Art{"fd.fdx", "cxxxab", "fd.fd."}));
    EXPECT_EQ(drawn(before,
                    [&](Drawing_Target& target) {
                        flood_fill_with_brush(target, {4, 1}, stamp, art_color('z'));
                    }),
              (Art{"zz.zzx", "zxxxzz", "zz.zz."}));
}

TEST(Flood_Fill, is_the_same_as_a_scan_of_the_grid_for_each_wave) {
    constexpr unsigned seed = 20240611;
    std::minstd_rand random(seed);
    for (int round = 0; round < 400; ++round) {
        Tile quick(1 + static_cast<int>(random() % 12), 1 + static_cast<int>(random() % 12));
        Tile mask(quick.width(), quick.height());
        for (int i = 0; i < quick.pixel_count(); ++i) {
            quick.set_pixel_at(i, art_color(". #"[random() % 3 * (random() % 2)]));
            mask.set_pixel_at(i, art_color(random() % 8 == 0 ? '.' : '#'));
        }
        const bool is_masked = round % 2 == 1;
        const Tile_Point start{static_cast<int>(random() % 12), static_cast<int>(random() % 12)};
        Tile slow(quick);
        Slow_Fill(slow, is_masked ? &mask : nullptr, start).paint(slow, art_color('z'));
        Drawing_Target target = is_masked ? Drawing_Target(quick, mask) : Drawing_Target(quick);
        flood_fill(target, start, art_color('z'));
        ASSERT_EQ(art(quick), art(slow)) << "seed " << seed << ", round " << round;
    }
}

TEST(Flood_Fill, ends_at_the_wave_limit) {
    Tile tile = serpentine(199, 103);
    Drawing_Target target(tile);
    const double time = milliseconds([&] { flood_fill(target, {0, 0}, art_color('z')); });
    // 50 rows of 199 pixels and the 49 joints between them are 9999 pixels.
    EXPECT_EQ(tile.get_pixel(0, 98), art_color('z'));
    EXPECT_EQ(tile.get_pixel(0, 99), art_color('.'));
    EXPECT_EQ(std::ranges::count(tile.pixels(), art_color('z')), 9999);
    EXPECT_LT(time, 500.0);
}

} // namespace quadrelle::testing
