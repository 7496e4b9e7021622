#include "tools/line.h"

#include "tests/support/tiles.h"

#include <limits>

namespace quadrelle::testing {
namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

std::vector<Tile_Point> points(Tile_Point from, Tile_Point to) {
    std::vector<Tile_Point> visited;
    walk_line(from, to, [&](Tile_Point position) { visited.push_back(position); });
    return visited;
}

Art line(Size size, Tile_Point from, Tile_Point to) {
    return drawn(blank(size.width, size.height),
                 [&](Drawing_Target& target) { draw_line(target, from, to, art_color('a')); });
}

} // namespace

TEST(Line, visits_one_point_a_step_in_order) {
    using Points = std::vector<Tile_Point>;
    EXPECT_EQ(points({0, 0}, {3, 1}), (Points{{0, 0}, {1, 0}, {2, 1}, {3, 1}}));
    EXPECT_EQ(points({5, -5}, {5, -5}), (Points{{5, -5}}));
    EXPECT_EQ(points({1, 2}, {1, 0}), (Points{{1, 2}, {1, 1}, {1, 0}}));
    // Halves go away from zero, on both sides of it and from both ends.
    EXPECT_EQ(points({0, 0}, {2, 1}), (Points{{0, 0}, {1, 1}, {2, 1}}));
    EXPECT_EQ(points({2, 1}, {0, 0}), (Points{{2, 1}, {1, 1}, {0, 0}}));
    EXPECT_EQ(points({0, 0}, {-2, -1}), (Points{{0, 0}, {-1, -1}, {-2, -1}}));
    EXPECT_EQ(points({0, 0}, {-1, -2}), (Points{{0, 0}, {-1, -1}, {-1, -2}}));
}

TEST(Line, steps_in_single_precision) {
    // The middles at x = 3, 9 and 15 are met exactly, a little early and exactly.
    EXPECT_EQ(line({19, 4}, {0, 0}, {18, 3}), (Art{"aaa................", "...aaaaaaa.........",
                                                   "..........aaaaa....", "...............aaaa"}));
}

TEST(Line, is_cut_off_at_the_tile) {
    EXPECT_EQ(line({4, 3}, {-2, -2}, {20, 20}), (Art{"a...", ".a..", "..a."}));
    EXPECT_EQ(line({4, 3}, {-20000, 1}, {20000, 1}), (Art{"....", "aaaa", "...."}));
    EXPECT_EQ(line({4, 3}, {1, 9}, {9, 1}), (Art{"....", "....", "...."}));
}

TEST(Line, copes_with_the_farthest_points) {
    EXPECT_EQ(line({4, 2}, {smallest, 1}, {largest, 1}), (Art{"....", "aaaa"}));
    EXPECT_EQ(line({2, 2}, {1, largest}, {1, smallest}), (Art{".a", ".a"}));
    EXPECT_EQ(line({3, 3}, {smallest, smallest}, {largest, largest}), (Art{"a..", ".a.", "..a"}));
    EXPECT_EQ(line({3, 3}, {smallest, 0}, {0, smallest}), blank(3, 3));
    EXPECT_TRUE(points({smallest, largest}, {largest, largest}).empty());
    EXPECT_TRUE(points({largest, smallest}, {largest, smallest}).empty());
}

TEST(Line, knows_its_length) {
    EXPECT_EQ(line_length({4, 4}, {4, 4}), 1);
    EXPECT_EQ(line_length({0, 0}, {-3, 4}), 6);
    EXPECT_EQ(line_length({0, 0}, {1, 1}), 2);
    EXPECT_EQ(line_length({smallest, 0}, {largest, 0}), 4294967296);
}

} // namespace quadrelle::testing
