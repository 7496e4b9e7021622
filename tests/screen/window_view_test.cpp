#include "screen/window_view.h"

#include <gtest/gtest.h>

namespace quadrelle::testing {
namespace {

constexpr Size drawing{100, 60};

TEST(Window_View_Test, a_drawing_lies_whole_in_the_middle_of_any_window) {
    struct Case {
        Size window;
        Rectangle area;
        Rectangle part; // where (10, 20), 5 x 6 large, is shown
    };
    for (const Case& test : {Case{{100, 60}, {0, 0, 100, 60}, {10, 20, 5, 6}},
                             {{140, 119}, {20, 29, 100, 60}, {30, 49, 5, 6}},
                             {{200, 120}, {0, 0, 200, 120}, {20, 40, 10, 12}},
                             {{305, 400}, {2, 110, 300, 180}, {32, 170, 15, 18}},
                             {{80, 60}, {0, 6, 80, 48}, {0, 6, 80, 48}},
                             {{50, 7}, {19, 0, 11, 7}, {19, 0, 11, 7}},
                             {{1, 1}, {0, 0, 1, 1}, {0, 0, 1, 1}}}) {
        const Window_View view(drawing, test.window);
        EXPECT_EQ(view.area(), test.area);
        EXPECT_EQ(view.shown({10, 20, 5, 6}), test.part);
        // Every pixel of the drawing is pointed at in its middle, there and back.
        for (int x = 0; x < drawing.width; x += 9) {
            const Window_View::Position there =
                view.in_window({static_cast<float>(x) + 0.5F, static_cast<float>(x) / 2 + 0.5F});
            EXPECT_GE(there.x, static_cast<float>(test.area.x));
            EXPECT_LT(there.x, static_cast<float>(test.area.right()));
            EXPECT_NEAR(view.in_drawing(there).x, static_cast<float>(x) + 0.5F, 0.01F);
            EXPECT_NEAR(view.in_drawing(there).y, static_cast<float>(x) / 2 + 0.5F, 0.01F);
        }
    }
}

TEST(Window_View_Test, a_window_is_as_large_as_the_display_has_scale_and_room_for) {
    struct Case {
        float scale;
        Size room, window;
    };
    for (const Case& test : {Case{1, {1000, 1000}, {100, 60}},
                             {1.9F, {1000, 1000}, {100, 60}},
                             {2, {1000, 1000}, {200, 120}},
                             {3.5F, {1000, 1000}, {300, 180}},
                             {2, {199, 1000}, {100, 60}},
                             {0, {100, 60}, {100, 60}},
                             {3, {90, 1000}, {90, 54}},
                             {1, {1000, 30}, {50, 30}}}) {
        EXPECT_EQ(wanted_window(drawing, test.scale, test.room), test.window) << test.scale;
    }
}

} // namespace
} // namespace quadrelle::testing
