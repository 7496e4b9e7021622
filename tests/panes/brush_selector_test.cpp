#include "panes/brush_selector.h"

#include "tests/support/window_test.h"

namespace quadrelle::testing {
namespace {

constexpr Point position{816, 62};

class Brush_Selector_Test : public Window_Test {
protected:
    // Icons of 18 x 18 pixels, five pixels inside of a row that stands below its title bar of 21.
    static Point icon(int row_top, int index) { return {position.x + 5 + 18 * index, row_top + 21 + 4}; }
    [[nodiscard]] static Point shape_icon(int index) { return icon(position.y, index); }
    [[nodiscard]] Point size_icon(int index) const {
        const int row_height = (below_ - position.y) / 2;
        return icon(position.y + row_height, index);
    }
    static Point inside(Point corner) { return {corner.x + 9, corner.y + 9}; }

    Brush_Selector selector_;
    Chosen_Brush chosen_;
    int below_ = selector_.move(position);
};

TEST_F(Brush_Selector_Test, icons_choose_shape_and_size) {
    EXPECT_TRUE(selector_.click(inside(size_icon(5)), chosen_));
    EXPECT_EQ(chosen_.brush().size(), (Size{6, 6}));
    EXPECT_FALSE(chosen_.brush().pixel(0, 0));
    EXPECT_TRUE(selector_.click(inside(shape_icon(1)), chosen_));
    EXPECT_TRUE(chosen_.brush().pixel(0, 0));
    EXPECT_EQ(chosen_.brush().size(), (Size{6, 6}));
    // What is chosen already is nobody's click, as is what has no icon.
    EXPECT_FALSE(selector_.click(inside(size_icon(5)), chosen_));
    EXPECT_FALSE(selector_.click(inside(shape_icon(1)), chosen_));
    EXPECT_FALSE(selector_.click(inside(size_icon(6)), chosen_));
    EXPECT_FALSE(selector_.click(inside(shape_icon(7)), chosen_));
    EXPECT_FALSE(selector_.click({position.x + 9, position.y + 10}, chosen_));
}

} // namespace
} // namespace quadrelle::testing
