#include "tools/hsv_adjustment.h"

#include "tests/support/tiles.h"

namespace quadrelle::testing {

TEST(hsv_adjustment, keeps_to_the_mask_and_begins_at_the_source) {
    Tile tile = random_tile({20, 20});
    const Tile before(tile);
    Tile mask(20, 20);
    std::mt19937 random(7);
    mask.map_colours([&](Color) { return random() % 2 == 0 ? Color(255, 255, 255) : Color(0, 0, 0, 0); });
    Drawing_Target target(tile, mask);
    adjust_hsv(target, before, {.saturation = -100});
    adjust_hsv(target, before, {.hue = 90, .value = -30});
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            const Color old = before.get_pixel(x, y);
            const Color wanted = mask.is_white_at(x, y) ? adjusted(old, {.hue = 90, .value = -30}) : old;
            ASSERT_EQ(tile.get_pixel(x, y), wanted) << x << ", " << y;
        }
    }
}

} // namespace quadrelle::testing
