#include "ui/held_button.h"

#include "tests/support/window_test.h"

namespace quadrelle::testing {
namespace {

class Held_Button_Test : public Window_Test {};

// Nothing at once, for it acted at the press; and only while the pointer is on it.
TEST_F(Held_Button_Test, acts_again_after_a_pause_while_the_pointer_is_on_it) {
    int acts = 0;
    int acts_before = 0;
    Point pointer{5, 5};
    Script script;
    script.check([&] { EXPECT_EQ(acts, 0); }).pause(310).check([&] { EXPECT_EQ(acts, 1); });
    script.pause(35).check([&] { EXPECT_GE(acts, 2); }).motion({50, 5});
    script.check([&] { acts_before = acts; }).pause(70).check([&] { EXPECT_EQ(acts, acts_before); });
    script.motion({6, 5}).check([&] { EXPECT_GT(acts, acts_before); }).key(key::escape);
    script.release({6, 5}, Mouse_Button::none).release({7, 5});
    repeat_while_held({{0, 0, 10, 10}, [] {}, [&acts] { ++acts; }}, pointer);
    EXPECT_TRUE(script.is_played());
    EXPECT_EQ(pointer, (Point{6, 5}));
}

} // namespace
} // namespace quadrelle::testing
