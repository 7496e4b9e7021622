#include "pixels/enlarged_picture.h"

#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

// Nothing shows of the colour of a transparent pixel.
Color shown(Color pixel) {
    return pixel.a == 0 ? white : pixel;
}

Tile doubled(const Tile& picture) {
    Tile result(2 * picture.width(), 2 * picture.height());
    picture.scale2x_into(result);
    return result;
}

TEST(Enlarged_Picture, is_the_picture_doubled_three_times) {
    constexpr std::array colors{black, red, clear, Color(9, 0, 0, 0)};
    std::mt19937 random(3);
    for (int run = 0; run < 300; ++run) {
        Tile picture(1 + static_cast<int>(random() % 9), 1 + static_cast<int>(random() % 9));
        picture.map_colours([&](Color) { return colors.at(random() % (2 + run % 3)); });
        const Enlarged_Picture enlarged(picture);
        picture.map_colours(shown);
        const Tile expected = doubled(doubled(doubled(picture)));
        for (int i = 0; i < expected.pixel_count(); ++i) {
            const int x = i % expected.width();
            const int y = i / expected.width();
            ASSERT_EQ(shown(enlarged.pixel(x, y)), expected.get_pixel(x, y)) << run << ": " << x << ", " << y;
        }
    }
}

} // namespace
} // namespace quadrelle::testing
