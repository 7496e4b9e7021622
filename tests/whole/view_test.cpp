#include "app/window_panes.h"
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

// During a pan and after it; the first motion moves no tile.
TEST_F(View_Test, brush_and_hint_go_with_the_pointer_that_pans) {
    const auto expect_shown = [this](Point pointer) {
        script().check([pointer] {
            EXPECT_EQ(pixel_at(pointer), white);
            const Tile_Point pixel = canvas().tile_point(pointer);
            EXPECT_EQ(tools().figures.location, pixel);
            EXPECT_EQ(editor->panes().hint_lines().lines().at(0),
                      "Pixel " + std::to_string(pixel.x) + ", " + std::to_string(pixel.y));
        });
    };
    script().key(key::left_control, Modifier::control).press({500, 300}, Mouse_Button::right);
    for (const Point pointer : {Point{515, 318}, Point{585, 325}, Point{602, 250}}) {
        script().motion(pointer);
        expect_shown(pointer);
    }
    script().release({602, 250}, Mouse_Button::right);
    expect_shown({602, 250});
    play(script().key_up(key::left_control));
}

TEST_F(View_Test, pan_is_armed_by_control_and_disarmed_by_any_release) {
    struct Row {
        bool pans;
        std::vector<Key_Chord> pressed;
        Keycode released = key::none;
    };
    constexpr Key_Chord control{key::left_control, Modifier::control};
    const std::vector<Row> rows{
        {false, {}},
        {true, {{key::right_control, Modifier::control}}},
        {false, {control}, key::left_control},
        {false, {control}, 'q'},
        {false, {{key::left_control, Modifier::shift}}},
        {true, {control, {key::left_shift, Modifier::shift}}},
        {false, {{key::left_alt, Modifier::alt}}},
        {true, {{'q', Modifier::control}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows.data());
        for (const Key_Chord& chord : row.pressed) {
            script().key(chord.key, chord.modifier);
        }
        if (row.released != key::none) {
            script().key_up(row.released);
        }
        script().press({500, 300}, Mouse_Button::right);
        expect_loop(row.pans ? "pan" : "stroke").release({500, 300}, Mouse_Button::right);
        play();
    }
    // While a stroke goes on it is armed too.
    script().press({500, 300}).key(key::left_control, Modifier::control).release({500, 300});
    script().press({500, 300}, Mouse_Button::right);
    expect_loop("pan").release({500, 300}, Mouse_Button::right).key_up(key::left_control);
    // The release may come while a menu is open.
    script().key(key::left_control, Modifier::control).press({20, 12}).key_up(key::left_control);
    script().key(key::escape).motion({500, 300}).press({500, 300}, Mouse_Button::right);
    expect_loop("stroke").release({500, 300}, Mouse_Button::right);
    // A pan disarms too, and the left button never pans.
    script().key(key::left_control, Modifier::control).press({500, 300});
    expect_loop("stroke").release({500, 300}).click({500, 300}, Mouse_Button::right);
    script().press({500, 300}, Mouse_Button::right);
    expect_loop("stroke").release({500, 300}, Mouse_Button::right);
    play();
}

TEST_F(View_Test, control_and_the_right_button_never_paint) {
    SDL_SetModState(SDL_KMOD_LCTRL);
    script().key(key::left_control, Modifier::control).key('c', Modifier::control).key_up('c');
    script().press({500, 300}, Mouse_Button::right);
    expect_loop("main").release({500, 300}, Mouse_Button::right);
    play();
    SDL_SetModState(SDL_KMOD_NONE);
    EXPECT_FALSE(document().is_modified());
}

TEST_F(View_Test, pan_ends_with_the_window_close_only) {
    script().key(key::left_control, Modifier::control).press({500, 300}, Mouse_Button::right).quit();
    expect_loop("main").motion({500, 300});
    play();
}

} // namespace
} // namespace quadrelle::testing
