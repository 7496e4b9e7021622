#include "selection/free_rotation.h"

#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

TEST(Rotation, quarter_turns_are_exact_and_a_full_turn_changes_nothing) {
    std::mt19937 random(7);
    for (const int edge : {1, 2, 7, 24}) {
        const Tile picture = random_tile({edge, edge}, random);
        Tile expected(edge, edge);
        expected.rotate_cw(picture);
        EXPECT_EQ(picture_of(turned(picture, 90, picture.size())), picture_of(expected)) << edge;
        EXPECT_EQ(picture_of(turned(picture, -270, picture.size())), picture_of(expected)) << edge;
        EXPECT_EQ(picture_of(turned(expected, 270, picture.size())), picture_of(picture)) << edge;
        EXPECT_EQ(picture_of(turned(turned(picture, 180, picture.size()), 540, picture.size())),
                  picture_of(picture))
            << edge;
        EXPECT_EQ(picture_of(turned(picture, 360, picture.size())), picture_of(picture)) << edge;
    }
}

TEST(Rotation, no_colour_comes_out_that_did_not_go_in) {
    std::mt19937 random(8);
    const Tile picture = random_tile({13, 8}, random);
    for (int degrees = 0; degrees < 360; degrees += 7) {
        const Tile result = turned(picture, degrees, picture.size());
        for (const Color pixel : result.pixels()) {
            const bool is_known = pixel == Color(0, 0, 0, 0) ||
                                  std::ranges::find(picture.pixels(), pixel) != picture.pixels().end();
            ASSERT_TRUE(is_known) << degrees;
        }
    }
}

Tile disc(Color color) {
    Tile picture(21, 21);
    picture.fill(Color(0, 0, 0, 0));
    for (int y = 0; y < 21; ++y) {
        for (int x = 0; x < 21; ++x) {
            if ((x - 10) * (x - 10) + (y - 10) * (y - 10) <= 64) {
                picture.set_pixel(x, y, color);
            }
        }
    }
    return picture;
}

// Black on transparent black is turned as any other colour is.
TEST(Rotation, tells_black_from_transparent) {
    const Tile white = disc(Color(255, 255, 255));
    const Tile black = disc(Color(0, 0, 0));
    for (int degrees = 1; degrees < 90; ++degrees) {
        Tile expected = turned(white, degrees, white.size());
        expected.map_colours([](Color pixel) { return pixel.a == 0 ? pixel : Color(0, 0, 0); });
        EXPECT_EQ(picture_of(turned(black, degrees, black.size())), picture_of(expected)) << degrees;
    }
}

TEST(Rotation, turns_by_the_angle_between_two_directions) {
    constexpr Tile_Position middle{10, 10};
    EXPECT_EQ(turn_between({15, 10}, {10, 15}, middle), 90);
    EXPECT_EQ(turn_between({10, 15}, {15, 10}, middle), 270);
    EXPECT_EQ(turn_between({15, 10}, {14, 14}, middle), 45);
    EXPECT_EQ(turn_between({5, 5}, {5, 5}, middle), 0);
    EXPECT_EQ(turn_between({10, 10}, {10, 10}, middle), 0);
}

} // namespace
} // namespace quadrelle::testing
