#include "selection/paste_shape.h"

#include "pixels/picture_formats.h"
#include "selection/free_rotation.h"
#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

// Twice its middle, in pixels of the tile.
Tile_Point doubled_middle(const Floating_Paste& paste) {
    return {2 * paste.position.x + paste.picture->width(), 2 * paste.position.y + paste.picture->height()};
}

void expect_same(const Floating_Paste& paste, const Floating_Paste& expected) {
    EXPECT_EQ(picture_of(paste.picture), picture_of(expected.picture));
    EXPECT_EQ(paste.position, expected.position);
}

TEST(Paste_Shape, grows_when_it_is_turned_so_that_nothing_is_lost_and_its_middle_stays) {
    const Floating_Paste paste{random_tile({9, 4}, 9), {5, -2}};
    for (int degrees = 0; degrees < 360; degrees += 5) {
        EXPECT_EQ(doubled_middle(turned(paste, degrees)), doubled_middle(paste)) << degrees;
    }
    const Floating_Paste upright = turned(paste, 90);
    // Odd across even has no common middle: there is a transparent line more.
    EXPECT_EQ(upright.picture->size(), (Size{5, 10}));
    EXPECT_EQ(picture_of(turned(paste, 0).picture), picture_of(paste.picture));
}

TEST(Paste_Shape, is_made_of_the_pixels_as_they_were_taken_however_it_was_shaped_before) {
    for (const Size size : {Size{1, 1}, Size{9, 4}, Size{6, 6}, Size{3, 8}}) {
        const Floating_Paste taken{random_tile(size, 3), {5, -2}};
        for (const Factors factors : {Factors{1, 1}, Factors{2, 3}}) {
            const Floating_Paste start = scaled(taken, factors, Corner::bottom_right);
            Floating_Paste paste = start;
            for (int degrees = 15; degrees <= 90; degrees += 15) {
                paste = turned(paste, degrees);
            }
            expect_same(paste, turned(start, 90));
            for (int degrees = 90; degrees <= 360; degrees += 15) {
                paste = turned(paste, degrees);
            }
            expect_same(paste, start);
            expect_same(scaled(paste, {1, 1}, Corner::bottom_right), taken);
            paste = turned(scaled(turned(paste, 40), {1, 1}, Corner::top_left), 0);
            EXPECT_EQ(picture_of(paste.picture), picture_of(taken.picture));
        }
    }
}

TEST(Paste_Shape, is_scaled_by_whole_factors_from_the_corner_that_stays) {
    const Floating_Paste paste{make_tile({"ab", "cd"}), {4, 4}};
    const Art wide{"aaabbb", "aaabbb", "cccddd", "cccddd"};
    struct Row {
        Corner fixed;
        Tile_Point position;
    };
    for (const Row& row : {Row{Corner::top_left, {4, 4}}, Row{Corner::top_right, {0, 4}},
                           Row{Corner::bottom_left, {4, 2}}, Row{Corner::bottom_right, {0, 2}}}) {
        const Floating_Paste result = scaled(paste, {3, 2}, row.fixed);
        EXPECT_EQ(art(result.picture), wide);
        EXPECT_EQ(result.position, row.position);
        expect_same(scaled(result, {1, 1}, row.fixed), paste);
    }
    EXPECT_EQ(scaled(paste, {0, 9999}, Corner::top_left).picture->size(), (Size{2, largest_picture_edge}));
    EXPECT_EQ(scaled({Tile(10, 10), {}}, {999, 999}, Corner::top_left).picture->size(), (Size{1020, 1020}));
    EXPECT_EQ(scaled({Tile(300, 4), {}}, {1, 9999}, Corner::top_left).picture->size(), (Size{300, 3492}));
}

TEST(Paste_Shape, what_is_mirrored_or_turned_by_a_quarter_goes_on_from_there) {
    const Floating_Paste taken{random_tile({7, 4}, 5), {3, 3}};
    for (const Placement* const placement : {&mirrored, &flipped, &turned_right, &turned_left}) {
        const Floating_Paste shaped = turned(scaled(taken, {2, 1}, Corner::top_left), 25);
        const Floating_Paste result = placed(shaped, *placement);
        EXPECT_EQ(picture_of(result.picture), picture_of(placed(shaped.picture, *placement)));
        const Floating_Paste upright = scaled(turned(result, 0), {1, 1}, Corner::top_left);
        EXPECT_EQ(picture_of(upright.picture), picture_of(placed(taken.picture, *placement)));
    }
}

TEST(Paste_Shape, takes_the_factors_that_bring_a_corner_where_it_is_pulled) {
    const Floating_Paste plain{Tile(10, 4), {0, 0}};
    const Floating_Paste double_wide = scaled(plain, {2, 1}, Corner::top_left);
    struct Row {
        Floating_Paste paste;
        Corner fixed;
        Tile_Position pulled;
        Factors factors;
    };
    for (const Row& row :
         {Row{plain, Corner::top_left, {0, 0}, {1, 1}}, Row{plain, Corner::top_left, {4.9, 1.9}, {1, 1}},
          Row{plain, Corner::top_left, {5.1, 6.1}, {2, 3}},
          Row{plain, Corner::bottom_right, {-20, -4}, {3, 2}},
          Row{plain, Corner::top_right, {-20, 4}, {3, 2}}, Row{plain, Corner::top_left, {-90, -90}, {1, 1}},
          Row{double_wide, Corner::top_left, {-10, 0}, {1, 1}},
          Row{double_wide, Corner::top_left, {10, 0}, {3, 1}},
          Row{turned(plain, 90), Corner::top_left, {4, 20}, {3, 2}}}) {
        EXPECT_EQ(factors_for(row.paste, row.fixed, row.pulled), row.factors)
            << row.pulled.x << ", " << row.pulled.y;
    }
}

} // namespace
} // namespace quadrelle::testing
