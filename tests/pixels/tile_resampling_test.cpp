#include "pixels/tile.h"

#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

// The channel that plain bilinear sampling in double precision gives.
double reference(const Tile& source, Size target, int x, int y, std::uint8_t Color::*part) {
    const auto position = [](int at, int from, int to) {
        const double span = from - (1.01 - static_cast<double>(from) / to);
        return std::clamp(at * span / to, 0.0, from - 1.0);
    };
    const double u = position(x, source.width(), target.width);
    const double v = position(y, source.height(), target.height);
    const int left = static_cast<int>(u);
    const int top = static_cast<int>(v);
    const auto channel = [&](int dx, int dy) { return source.get_pixel_clamped(left + dx, top + dy).*part; };
    const double upper = std::lerp(channel(0, 0), channel(1, 0), u - left);
    const double lower = std::lerp(channel(0, 1), channel(1, 1), u - left);
    return std::lerp(upper, lower, v - top);
}

void expect_near_reference(const Tile& source, const Tile& target) {
    for (int y = 0; y < target.height(); ++y) {
        for (int x = 0; x < target.width(); ++x) {
            for (const auto part : {&Color::r, &Color::g, &Color::b}) {
                ASSERT_NEAR(target.get_pixel(x, y).*part + 0.5, reference(source, target.size(), x, y, part),
                            0.51)
                    << x << ", " << y;
            }
            ASSERT_EQ(target.alpha_at(x, y), 255);
        }
    }
}

} // namespace

TEST(Tile_Resampling, resampling_to_the_same_size_copies_alpha_too) {
    std::mt19937 random(1);
    const Tile source = random_tile({5, 7}, random);
    Tile target(5, 7);
    source.resample_into(target);
    EXPECT_TRUE(std::ranges::equal(source.pixels(), target.pixels()));
}

TEST(Tile_Resampling, resampling_follows_bilinear_sampling) {
    std::mt19937 random(7);
    constexpr std::array<int, 9> lengths = {1, 2, 3, 5, 16, 24, 64, 100, 255};
    for (const int from : lengths) {
        for (const int to : lengths) {
            SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
            const Tile source = random_tile({from, 3}, random);
            Tile target(to, 4);
            source.resample_into(target);
            ASSERT_NO_FATAL_FAILURE(expect_near_reference(source, target));
            const Tile upright = random_tile({2, from}, random);
            Tile tall(3, to);
            upright.resample_into(tall);
            ASSERT_NO_FATAL_FAILURE(expect_near_reference(upright, tall));
        }
    }
}

TEST(Tile_Resampling, anti_aliasing_softens_edges_and_makes_opaque) {
    Tile tile = make_tile({"....", "..##", "..##", "    "});
    tile.anti_alias();
    EXPECT_EQ(tile.get_pixel(0, 0), (Color{0, 0, 0}));
    const auto is_soft = [](Color color) { return color.r > 0 && color.r < 255; };
    EXPECT_GT(std::ranges::count_if(tile.pixels(), is_soft), 0);
    EXPECT_TRUE(std::ranges::all_of(tile.pixels(), [](Color color) { return color.a == 255; }));
    Tile plain = make_tile({"#"});
    plain.anti_alias();
    EXPECT_GE(plain.get_pixel(0, 0).r, 253);
}

} // namespace quadrelle::testing
