#include "tools/shapes.h"

#include "tests/support/tiles.h"

#include <limits>

namespace quadrelle::testing {
namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

struct Shape_Case {
    Canvas_Action action;
    Tile_Point from;
    Tile_Point to;
    Art after;
};

// In the letter o, the other button's colour being i.
Art shape(Size size, Canvas_Action action, Tile_Point from, Tile_Point to) {
    return drawn(blank(size.width, size.height), [&](Drawing_Target& target) {
        draw_shape(target, action, from, to, {art_color('o'), art_color('i')});
    });
}

Art ellipse(Size size, Tile_Point centre, Radii radii) {
    return drawn(blank(size.width, size.height),
                 [&](Drawing_Target& target) { draw_ellipse(target, centre, radii, art_color('o')); });
}

} // namespace

TEST(Shapes, are_drawn_from_the_first_point_to_the_second) {
    using enum Canvas_Action;
    const Shape_Case cases[] = {
        {line, {5, 1}, {1, 3}, {".......", ".....o.", "...oo..", ".oo....", "......."}},
        {rectangle_outline, {5, 3}, {2, 1}, {".......", "..oooo.", "..o..o.", "..oooo.", "......."}},
        {rectangle_outline, {3, 2}, {3, 2}, {".......", ".......", "...o...", ".......", "......."}},
        {rectangle_outline, {-1, 3}, {2, 9}, {".......", ".......", ".......", "ooo....", "..o...."}},
        {rectangle_filled, {4, 1}, {5, 4}, {".......", "....oo.", "....oo.", "....oo.", "....oo."}},
        {rectangle_filled_outline, {4, 3}, {2, 1}, {".......", "..ooo..", "..oio..", "..ooo..", "......."}},
        {rectangle_filled_outline, {6, 4}, {6, 4}, {".......", ".......", ".......", ".......", "......o"}},
        {rectangle_filled_outline, {-1, -1}, {1, 2}, {"io.....", "io.....", "oo.....", ".......", "......."}},
        {ellipse_outline, {3, 2}, {6, 4}, {"..ooo..", "oo...oo", "o.....o", "oo...oo", "..ooo.."}},
        {ellipse_outline, {3, 2}, {3, 2}, {".......", ".......", "...o...", ".......", "......."}},
        {ellipse_outline, {3, 2}, {3, 1}, {".......", "...o...", "...o...", "...o...", "......."}},
        {ellipse_outline, {3, 2}, {1, 2}, {".......", ".......", ".ooooo.", ".......", "......."}},
        {ellipse_outline, {0, 0}, {-2, 2}, {"..o....", "..o....", "oo.....", ".......", "......."}},
        {ellipse_filled, {3, 2}, {0, 0}, {"..ooo..", "ooooooo", "ooooooo", "ooooooo", "..ooo.."}},
        {ellipse_filled_outline, {3, 2}, {6, 4}, {"..ooo..", "ooiiioo", "oiiiiio", "ooiiioo", "..ooo.."}},
        {pen, {1, 1}, {5, 3}, blank(7, 5)},
        {none, {1, 1}, {5, 3}, blank(7, 5)},
    };
    for (const Shape_Case& row : cases) {
        EXPECT_EQ(shape({7, 5}, row.action, row.from, row.to), row.after)
            << "action " << static_cast<int>(row.action) << " to " << row.to.x << ", " << row.to.y;
    }
}

TEST(Shapes, narrow_ellipses_have_their_tips) {
    const std::string tip = ".o.";
    const std::string side = "o.o";
    EXPECT_EQ(ellipse({3, 13}, {1, 6}, {1, 6}),
              (Art{tip, tip, side, side, side, side, side, side, side, side, side, tip, tip}));
    for (int b = 0; b < 40; ++b) {
        const Art column(static_cast<std::size_t>(2 * b + 1), "o");
        EXPECT_EQ(ellipse({1, 2 * b + 1}, {0, b}, {0, b}), column);
        EXPECT_EQ(ellipse({2 * b + 1, 1}, {b, 0}, {-b, 0}), (Art{std::string(column.size(), 'o')}));
    }
}

TEST(Shapes, cope_with_the_farthest_points) {
    using enum Canvas_Action;
    EXPECT_EQ(shape({3, 3}, rectangle_outline, {1, 1}, {largest, smallest}), (Art{".o.", ".oo", "..."}));
    EXPECT_EQ(shape({3, 3}, rectangle_filled_outline, {smallest, smallest}, {largest, 1}),
              (Art{"iii", "ooo", "..."}));
    EXPECT_EQ(shape({3, 3}, ellipse_filled, {smallest, smallest}, {largest, largest}), blank(3, 3));
    EXPECT_EQ(shape({3, 3}, ellipse_filled_outline, {1, 1}, {smallest, smallest}),
              (Art{"iii", "iii", "iii"}));
    EXPECT_EQ(shape({3, 3}, ellipse_filled_outline, {1, 1}, {20000, 1}), (Art{"...", "ooo", "..."}));
    EXPECT_EQ(shape({3, 3}, ellipse_outline, {1, -20000}, {1, 2}), (Art{".o.", ".o.", ".o."}));
}

TEST(Shapes, know_their_figures) {
    EXPECT_EQ(rectangle_size({5, 5}, {2, 3}), (Size{4, 3}));
    EXPECT_EQ(rectangle_size({5, 5}, {5, 5}), (Size{1, 1}));
    EXPECT_EQ(rectangle_size({smallest, 0}, {largest, largest}), (Size{largest, largest}));
    EXPECT_EQ(ellipse_radii({5, 5}, {2, 9}), (Radii{3, 4}));
    EXPECT_EQ(ellipse_radii({smallest, 0}, {largest, smallest}), (Radii{largest, largest}));
}

} // namespace quadrelle::testing
