#include "ui/control.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "tests/support/window_test.h"
#include "ui/dialog_container.h"

namespace quadrelle::testing {
namespace {

class Control_Test : public Window_Test {
protected:
    static constexpr Rectangle area{100, 100, 20, 20};
    static constexpr Point inside{100, 119};
    static constexpr Point outside{120, 110};

    static void expect(Control_State state) { EXPECT_EQ(control_state(area), state); }
    // Plays what was added to the script.
    static void play(const Script& /*steps*/) {
        run_modal({"controls", [] { screen->clear(); },
                   [](const Input_Event& event) {
                       return event.kind == Input_Kind::quit ? Loop_Step::end : Loop_Step::go_on;
                   }});
    }
};

} // namespace

TEST_F(Control_Test, is_hovered_under_the_pointer_and_held_on_it_until_the_release) {
    Script script;
    script.check([] { expect(Control_State::idle); });
    script.motion(inside).check([] { expect(Control_State::hovered); });
    script.press(inside).check([] { expect(Control_State::held); });
    script.motion(outside).check([] { expect(Control_State::idle); });
    script.motion(inside).check([] { expect(Control_State::held); });
    script.motion(outside);
    script.release(outside).check([] { expect(Control_State::idle); });
    script.press(outside).motion(inside).check([] { expect(Control_State::idle); });
    script.release(inside).check([] { expect(Control_State::hovered); });
    script.pointer_leaves().check([] { expect(Control_State::idle); });
    script.motion(inside).check([] { EXPECT_EQ(control_state(area, Usable::no), Control_State::disabled); });
    script.check([] {
        const Behind something;
        expect(Control_State::idle);
    });
    play(script.quit());
}

TEST_F(Control_Test, what_comes_into_view_under_a_held_button_was_not_pressed) {
    Script script;
    script.press(inside).check([] { run_message("Note", "It opened under the pointer."); });
    script.check([] { expect(Control_State::idle); }).key(key::escape);
    script.check([] { expect(Control_State::idle); });
    script.release(inside).check([] { expect(Control_State::hovered); });
    play(script.quit());
}

} // namespace quadrelle::testing
