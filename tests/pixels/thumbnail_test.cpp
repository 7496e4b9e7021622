#include "pixels/thumbnail.h"

#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

// What stands around it stays.
TEST(Thumbnail, shows_the_nearest_pixel_whatever_the_size_of_the_tile) {
    constexpr Size target{34, 31};
    constexpr Color untouched(1, 2, 3);
    for (const Size size : {Size{1, 1}, {6, 6}, {24, 24}, {24, 12}, {16, 37}, {64, 64}, {255, 1}}) {
        SCOPED_TRACE(std::to_string(size.width) + " x " + std::to_string(size.height));
        Tile tile(size.width, size.height);
        for (int i = 0; i < tile.pixel_count(); ++i) {
            tile.set_pixel_at(i, {i % size.width, i / size.width, 200});
        }
        std::vector<Color> pixels(static_cast<std::size_t>(target.width * target.height), untouched);
        paint_thumbnail(tile, {5, 3},
                        {pixels.data(), target.width * static_cast<int>(sizeof(Color)), target});
        EXPECT_EQ(std::ranges::count(pixels, untouched), target.width * target.height - 24 * 24);
        for (int i = 0; i < 24 * 24; ++i) {
            const int x = i % 24;
            const int y = i / 24;
            const Color color = pixels.at(static_cast<std::size_t>((y + 3) * target.width + x + 5));
            EXPECT_NEAR(color.r + 0.5, (x + 0.5) * size.width / 24, 0.51);
            EXPECT_NEAR(color.g + 0.5, (y + 0.5) * size.height / 24, 0.51);
        }
    }
}

} // namespace
} // namespace quadrelle::testing
