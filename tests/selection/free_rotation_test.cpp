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

TEST(Rotation, a_paste_grows_so_that_nothing_is_lost_and_its_middle_stays) {
    std::mt19937 random(9);
    const Floating_Paste paste{random_tile({9, 4}, random), {5, -2}};
    for (int degrees = 0; degrees < 360; degrees += 5) {
        const Floating_Paste result = turned(paste, degrees);
        EXPECT_EQ(2 * result.position.x + result.picture->width(), 2 * 5 + 9) << degrees;
        EXPECT_EQ(2 * result.position.y + result.picture->height(), 2 * -2 + 4) << degrees;
    }
    const Floating_Paste upright = turned(paste, 90);
    // Odd across even has no common middle: there is a transparent line more.
    EXPECT_EQ(upright.picture->size(), (Size{5, 10}));
    EXPECT_EQ(picture_of(turned(paste, 0).picture), picture_of(paste.picture));
}

TEST(Rotation, turns_by_the_angle_between_two_directions) {
    constexpr Tile_Point middle{2 * 10 + 1, 2 * 10 + 1}; // of pixel (10, 10)
    EXPECT_EQ(turn_between({15, 10}, {10, 15}, middle), 90);
    EXPECT_EQ(turn_between({10, 15}, {15, 10}, middle), 270);
    EXPECT_EQ(turn_between({15, 10}, {14, 14}, middle), 45);
    EXPECT_EQ(turn_between({5, 5}, {5, 5}, middle), 0);
    EXPECT_EQ(turn_between({10, 10}, {10, 10}, middle), 0);
}

} // namespace
} // namespace quadrelle::testing
