#include "pixels/thumbnail.h"

#include "pixels/tile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quadrelle {
namespace {

constexpr Point place{5, 3};
constexpr Size target_size{34, 31};
constexpr Color untouched(1, 2, 3);

// Where `paint_thumbnail` should have left everything else alone.
class Painted {
public:
    explicit Painted(const Tile& tile) {
        paint_thumbnail(tile, place,
                        {pixels_.data(), target_size.width * static_cast<int>(sizeof(Color)), target_size});
    }
    [[nodiscard]] Color at(int x, int y) const {
        return pixels_.at(static_cast<std::size_t>((place.y + y) * target_size.width + place.x + x));
    }
    [[nodiscard]] int touched() const {
        return static_cast<int>(
            std::count_if(pixels_.begin(), pixels_.end(), [](Color color) { return color != untouched; }));
    }

private:
    std::vector<Color> pixels_ =
        std::vector<Color>(static_cast<std::size_t>(target_size.width * target_size.height), untouched);
};

TEST(Thumbnail, shows_the_nearest_pixel_whatever_the_size_of_the_tile) {
    for (const Size size : {Size{1, 1}, {6, 6}, {24, 24}, {24, 12}, {16, 37}, {64, 64}, {255, 1}}) {
        SCOPED_TRACE(std::to_string(size.width) + " x " + std::to_string(size.height));
        Tile tile(size.width, size.height);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                tile.set_pixel(x, y, {x, y, 200});
            }
        }
        const Painted painted(tile);
        EXPECT_EQ(painted.touched(), 24 * 24);
        for (int y = 0; y < 24; ++y) {
            for (int x = 0; x < 24; ++x) {
                const Color color = painted.at(x, y);
                EXPECT_NEAR(color.r + 0.5, (x + 0.5) * size.width / 24, 0.51);
                EXPECT_NEAR(color.g + 0.5, (y + 0.5) * size.height / 24, 0.51);
            }
        }
    }
}

TEST(Thumbnail, lets_a_checkerboard_of_four_by_four_squares_shine_through) {
    Tile tile(2, 1);
    tile.set_pixel(0, 0, {255, 255, 255, 0});
    tile.set_pixel(1, 0, {255, 255, 255, 128});
    const Painted painted(tile);
    EXPECT_EQ(painted.at(0, 0), Color(101, 101, 101));
    EXPECT_EQ(painted.at(5, 5), painted.at(0, 0));
    EXPECT_EQ(painted.at(6, 0), Color(169, 169, 169));
    EXPECT_EQ(painted.at(6, 6), painted.at(0, 0));
    EXPECT_NEAR(painted.at(12, 0).g, (101 + 255) / 2, 2);
    EXPECT_NEAR(painted.at(18, 0).g, (169 + 255) / 2, 2);
    // Nothing to show but the checkerboard.
    EXPECT_EQ(Painted(Tile(0, 9)).at(23, 23), Color(101, 101, 101));
    EXPECT_EQ(Painted(Tile(0, 9)).at(23, 0), Color(169, 169, 169));
}

} // namespace
} // namespace quadrelle
