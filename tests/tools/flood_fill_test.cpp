#include "tools/flood_fill.h"

#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

Art filled(const Art& before, Tile_Point seed) {
    return drawn(before, [&](Drawing_Target& target) { flood_fill(target, seed, art_color('z')); });
}

// Pixel by pixel, plainly what a fill means.
void fill_slowly(Drawing_Target& target, Tile_Point seed, Color color) {
    const Color old = target.get(seed);
    std::vector<Tile_Point> waiting{seed};
    while (!waiting.empty()) {
        const Tile_Point at = waiting.back();
        waiting.pop_back();
        if (target.contains(at) && target.is_selected(at) && target.get(at) == old && old != color) {
            target.plot(at, color);
            waiting.insert(waiting.end(),
                           {{at.x + 1, at.y}, {at.x - 1, at.y}, {at.x, at.y + 1}, {at.x, at.y - 1}});
        }
    }
}

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

// As the smudge brush and the lightness pen leave them.
TEST(Flood_Fill, takes_all_transparent_pixels_for_one_colour) {
    Tile tile = make_tile({" . ", "   ", " . "});
    tile.set_pixel(1, 1, {90, 80, 70, 0});
    tile.set_pixel(2, 1, {90, 80, 70, 1});
    for (const Tile_Point seed : {Tile_Point{0, 0}, {1, 1}}) {
        Tile filled(tile);
        Drawing_Target target(filled);
        flood_fill(target, seed, art_color('z'));
        EXPECT_EQ(art_color('z'), filled.get_pixel(1, 1));
        EXPECT_EQ(std::ranges::count(filled.pixels(), art_color('z')), 4);
    }
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

TEST(Flood_Fill, is_the_same_as_filling_pixel_by_pixel) {
    constexpr unsigned seed = 20240611;
    std::minstd_rand random(seed);
    for (int round = 0; round < 400; ++round) {
        Tile quick(1 + static_cast<int>(random() % 12), 1 + static_cast<int>(random() % 12));
        Tile mask(quick.width(), quick.height());
        for (int i = 0; i < quick.pixel_count(); ++i) {
            quick.set_pixel_at(i, art_color(". #"[random() % 3 * (random() % 2)]));
            mask.set_pixel_at(i, art_color(random() % 8 == 0 ? '.' : '#'));
        }
        Tile slow(quick);
        const Tile_Point start{static_cast<int>(random() % 12), static_cast<int>(random() % 12)};
        const auto target = [&](Tile& tile) {
            return round % 2 == 1 ? Drawing_Target(tile, mask) : Drawing_Target(tile);
        };
        Drawing_Target on_slow = target(slow);
        Drawing_Target on_quick = target(quick);
        fill_slowly(on_slow, start, art_color('z'));
        flood_fill(on_quick, start, art_color('z'));
        ASSERT_EQ(art(quick), art(slow)) << "seed " << seed << ", round " << round;
    }
}

TEST(Flood_Fill, ends_at_the_wave_limit) {
    Tile tile = serpentine(199, 103);
    Drawing_Target target(tile);
    flood_fill(target, {0, 0}, art_color('z'));
    // 50 rows of 199 pixels and the 49 joints between them are 9999 pixels.
    EXPECT_EQ(tile.get_pixel(0, 98), art_color('z'));
    EXPECT_EQ(tile.get_pixel(0, 99), art_color('.'));
    EXPECT_EQ(std::ranges::count(tile.pixels(), art_color('z')), 9999);
}

} // namespace quadrelle::testing
