#include "tests/whole/program_test.h"

#include <SDL3/SDL_events.h>

namespace quadrelle::testing {
namespace {

class View_Test : public Program_Test {
protected:
    static Canvas_View& canvas() { return editor->canvas(); }
};

constexpr Point centre_of_24{400, 200};

TEST_F(View_Test, zooms_by_wheel_and_keypad_within_its_limits) {
    play(script().wheel(1).wheel(0.2F).wheel(0).wheel(-1).key(key::keypad_plus).key(key::keypad_minus));
    EXPECT_EQ(canvas().pixel_size(), 11);
    EXPECT_EQ(canvas().origin(), (Point{388, 188}));

    for (int i = 0; i < 40; ++i) {
        script().wheel(5);
    }
    play();
    EXPECT_EQ(canvas().pixel_size(), 32);
    const Point largest = canvas().origin();
    play(script().key(key::keypad_plus).wheel(1));
    EXPECT_EQ(canvas().origin(), largest);

    for (int i = 0; i < 40; ++i) {
        script().key(key::keypad_minus);
    }
    play();
    EXPECT_EQ(canvas().pixel_size(), 3);
    EXPECT_EQ(canvas().origin(), (Point{484, 284}));
    EXPECT_FALSE(document().is_modified());
}

TEST_F(View_Test, pans_with_control_and_the_right_button) {
    script().key(key::left_control, Modifier::control).press({500, 300}, Mouse_Button::right);
    expect_loop("pan");
    // The first motion only tells where the pointer was.
    script().motion({560, 370}).check([] { EXPECT_EQ(canvas().origin(), centre_of_24); });
    script().motion({563, 365}).motion({463, 366}).check([] {
        EXPECT_EQ(canvas().origin(), (Point{centre_of_24.x - 97, centre_of_24.y - 4}));
    });
    script().release({463, 366}, Mouse_Button::none);
    expect_loop("pan").release({463, 366}, Mouse_Button::right);
    expect_loop("main").motion({500, 300});
    play();
    EXPECT_EQ(canvas().origin(), (Point{centre_of_24.x - 97, centre_of_24.y - 4}));
    EXPECT_FALSE(document().is_modified());
}

struct Pan_Case {
    const char* name;
    std::function<void(Script&)> before;
    bool pans;
};

TEST_F(View_Test, pan_is_armed_by_control_and_disarmed_by_any_release) {
    const std::vector<Pan_Case> cases{
        {"without control", [](Script&) {}, false},
        {"control", [](Script& s) { s.key(key::right_control, Modifier::control); }, true},
        {"released", [](Script& s) { s.key(key::left_control, Modifier::control).key_up(key::left_control); },
         false},
        {"another key released",
         [](Script& s) { s.key(key::left_control, Modifier::control).key_up('q', Modifier::control); },
         false},
        {"shift and control", [](Script& s) { s.key(key::left_control, Modifier::shift); }, false},
        {"control and then shift",
         [](Script& s) { s.key(key::left_control, Modifier::control).key(key::left_shift, Modifier::shift); },
         true},
        {"released while a menu was open",
         [](Script& s) {
             s.key(key::left_control, Modifier::control)
                 .press({20, 12})
                 .key_up(key::left_control)
                 .key(key::escape)
                 .motion({500, 300});
         },
         false},
        {"alt", [](Script& s) { s.key(key::left_alt, Modifier::alt); }, false},
        {"control with an unused key", [](Script& s) { s.key('q', Modifier::control); }, true},
    };
    for (const Pan_Case& test : cases) {
        SCOPED_TRACE(test.name);
        test.before(script());
        script().press({500, 300}, Mouse_Button::right);
        expect_loop(test.pans ? "pan" : "stroke").release({500, 300}, Mouse_Button::right);
        play();
    }
    // A pan disarms too, and the left button never pans.
    script().key(key::left_control, Modifier::control).press({500, 300});
    expect_loop("stroke").release({500, 300}).click({500, 300}, Mouse_Button::right);
    script().press({500, 300}, Mouse_Button::right);
    expect_loop("stroke").release({500, 300}, Mouse_Button::right);
    play();
}

TEST_F(View_Test, pan_ends_with_the_window_close_only) {
    script().key(key::left_control, Modifier::control).press({500, 300}, Mouse_Button::right).quit();
    expect_loop("main").motion({500, 300});
    play();
}

} // namespace
} // namespace quadrelle::testing
