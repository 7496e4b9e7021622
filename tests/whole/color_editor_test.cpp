#include "color/color_data.h"
#include "color/color_edit.h"
#include "color/palette_list.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "tests/whole/program_test.h"

#include <SDL3/SDL.h>

namespace quadrelle::testing {
namespace {

constexpr Point ok{820, 460};
constexpr Point cancel{1180, 460};
constexpr Point database_tab{940, 74};
constexpr Point data_tab{830, 74};
constexpr Point field{940, 413};
constexpr int less_x = 1141;
constexpr int number_x = 1176;
constexpr int bar_left = 872;
constexpr int bar_right = 1129;

constexpr Point at(int x, Color_Channel channel) {
    return {x, 223 + 24 * static_cast<int>(channel) + 12};
}
constexpr Point more(Color_Channel channel) {
    return at(1210, channel);
}
// A row of the list of named colours.
constexpr Point named(int index) {
    return {index < 12 ? 880 : 1100, 96 + 28 * (index % 12) + 12};
}

constexpr Color start(97, 18, 124);

class Color_Editor_Test : public Program_Test {
protected:
    void SetUp() override {
        Program_Test::SetUp();
        tools().colors.set(Mouse_Button::left, start);
    }

    // The left tool colour after the script was played in the dialog.
    Color edited() {
        tools().colors.set(Mouse_Button::left, start);
        execute(Command::color_editor);
        return tools().colors.of(Mouse_Button::left);
    }
    Script& write(const char* text) { return script().text(text); }
    Script& hold_shift(bool is_held) {
        return script().check([is_held] { SDL_SetModState(is_held ? SDL_KMOD_LSHIFT : SDL_KMOD_NONE); });
    }
    Script& double_click(Point position) { return script().click(position).second_press(position); }
};

TEST_F(Color_Editor_Test, gives_the_color_back_only_when_accepted) {
    const auto after = [this](const std::function<void()>& end) {
        script().click(more(Color_Channel::red));
        end();
        return edited();
    };
    const Color changed(98, 18, 124);
    EXPECT_EQ(after([&] { script().key(key::enter); }), changed);
    EXPECT_EQ(after([&] { script().key(key::keypad_enter); }), changed);
    EXPECT_EQ(after([&] { script().key('y'); }), changed);
    EXPECT_EQ(after([&] { script().press(ok); }), changed);
    EXPECT_EQ(after([&] { script().key(key::escape); }), start);
    EXPECT_EQ(after([&] { script().press(cancel); }), start);
    EXPECT_EQ(after([&] { script().quit(); }), start);
    EXPECT_EQ(tools().colors.of(Mouse_Button::right), Color(0, 0, 0));
    EXPECT_FALSE(document().is_modified());
}

// The picture of the dialog's title bar tells them apart.
TEST_F(Color_Editor_Test, a_double_click_opens_it_for_that_color) {
    constexpr Point entry{36 + 2 * 24 + 12, 472 + 10};
    constexpr Color changed(98, 18, 124);
    struct Case {
        Point point;
        bool left, right, of_palette;
    };
    const auto red_of_entry = [] {
        return palette_list->palette(palette_list->size() > 3 ? 3 : 0).colors.at(2).r;
    };
    std::vector<std::vector<Color>> titles;
    for (const Case& test : {Case{{1100, 70}, true, false, false},
                             {{1100, 140}, false, true, false},
                             {{197, 572}, true, false, false},
                             {{222, 572}, false, true, false},
                             {entry, true, false, true},
                             {{55, 607}, false, false, true}}) {
        SCOPED_TRACE(test.point.x);
        tools().colors.set(Mouse_Button::left, start);
        tools().colors.set(Mouse_Button::right, start);
        const int red = red_of_entry();
        double_click(test.point);
        expect_loop("dialog \"Color editor\"").check([&] {
            titles.emplace_back();
            for (int x = 1000; x < 1218; ++x) {
                titles.back().push_back(pixel_at({x, 40}));
            }
        });
        script().click(more(Color_Channel::red)).key(key::enter);
        play();
        EXPECT_EQ(tools().colors.left == changed, test.left);
        EXPECT_EQ(tools().colors.right == changed, test.right);
        EXPECT_EQ(red_of_entry() - red, test.of_palette ? 1 : 0);
    }
    EXPECT_EQ(titles[0], titles[2]);
    EXPECT_EQ(titles[1], titles[3]);
    EXPECT_EQ(titles[4], titles[5]);
    EXPECT_NE(titles[0], titles[1]);
    EXPECT_NE(titles[1], titles[4]);
    // Neighbours of the palette clicked quickly are no double click, and neither are two with Shift.
    play(script().click(entry).second_press({entry.x + 24, entry.y}).release(entry));
    hold_shift(true);
    double_click(entry);
    play(hold_shift(false).motion(entry));
}

TEST_F(Color_Editor_Test, steps_drags_and_types_every_number) {
    for (const Color_Channel_Row& row : color_channels) {
        SCOPED_TRACE(row.name);
        const auto expect = [&](int wanted) {
            script().key(key::enter);
            Color_Edit model(start);
            model.set_number(row.id, wanted);
            EXPECT_EQ(edited(), model.color());
        };
        const int before = Color_Edit(start).number(row.id);
        const bool wraps = row.end == Channel_End::wraps;
        // The pointer may leave the bar while it drags.
        script().drag({at(1000, row.id), {bar_left - 60, 300}});
        expect(0);
        script().drag({at(1000, row.id), {bar_right + 60, 600}});
        expect(row.high);
        script().drag({at(bar_left, row.id), at(bar_right, row.id), {500, 10}}).motion(at(1000, row.id));
        expect(0);
        script()
            .drag({at(bar_left, row.id), at(1000, row.id)})
            .click(at(less_x, row.id))
            .click(at(less_x, row.id));
        expect((row.high * 2 * 128 + 257) / (2 * 257) - 2);
        script()
            .click(at(number_x, row.id))
            .type(std::to_string(row.high))
            .key(key::enter)
            .click(more(row.id));
        expect(wraps ? 0 : row.high);
        script().click(at(number_x, row.id)).type("0").key(key::enter).click(at(less_x, row.id));
        expect(wraps ? row.high : 0);
        script().click(at(number_x, row.id)).type("7").key(key::escape);
        expect(before);
        // What accepts the number is not typed in the field.
        script().click(at(number_x, row.id)).type("7y").text("y");
        expect(7);
        script().motion(at(number_x, row.id)).wheel(1).wheel(1).wheel(-1);
        script().click(at(number_x, row.id)).type("50").key(key::enter).wheel(1).wheel(1).wheel(-1);
        hold_shift(true).wheel(1).click(more(row.id));
        hold_shift(false);
        expect(71);
    }
}

TEST_F(Color_Editor_Test, moves_through_its_numbers_by_the_arrow_keys) {
    script().key(key::up).key(key::down).key(key::right).key(key::down).key(key::left);
    script().key(key::right, Modifier::shift).key(key::enter);
    EXPECT_EQ(edited(), Color(98, 27, 124));
    for (int i = 0; i < 12; ++i) {
        script().key(key::down);
    }
    script().key(key::left, Modifier::shift).key(key::enter);
    Color_Edit model(start);
    model.step(Color_Channel::value, -10);
    EXPECT_EQ(edited(), model.color());
}

TEST_F(Color_Editor_Test, takes_typed_text_and_refuses_wrong_one) {
    write("#0080fF");
    script().key(key::enter);
    EXPECT_EQ(edited(), Color(0, 0x80, 0xff));
    for (const char* digit : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
        write(digit);
    }
    script().key(key::enter);
    EXPECT_EQ(edited(), Color(0x12, 0x34, 0x56, 0x78));

    // On the way to five digits there were three that stand for a colour. Nothing accepts what is none.
    for (const char* wrong : {"611", "27", "y"}) {
        write(wrong);
    }
    script().key('y').key(key::enter).press(ok);
    expect_loop("dialog \"Color editor\"").check([] {
        EXPECT_EQ(pixel_at({field.x, 401}), standard_color(Standard_Color::orange));
        EXPECT_TRUE(has_picture({1010, 402, 200, 20}));
    });
    script().key(key::backspace);
    write("c").key(key::enter);
    EXPECT_EQ(edited(), start);

    write("nonsense").click(at(less_x, Color_Channel::green)).key(key::enter);
    EXPECT_EQ(edited(), Color(97, 17, 124));
}

TEST_F(Color_Editor_Test, copies_and_pastes) {
    script().key('c', Modifier::control).key(key::escape);
    EXPECT_EQ(edited(), start);
    const char* const copied = SDL_GetClipboardText();
    EXPECT_STREQ(copied, "#61127c");
    SDL_free(const_cast<char*>(copied));
    SDL_SetClipboardText(" a1b2c3d4\n");
    write("66").key('v', Modifier::control).key(key::enter);
    EXPECT_EQ(edited(), Color(0xa1, 0xb2, 0xc3, 0xd4));
    SDL_SetClipboardText("no colour at all, and much too long for the field");
    script().key('v', Modifier::control).key(key::enter).key(key::escape);
    EXPECT_EQ(edited(), start);
    SDL_SetClipboardText("");
    script().key('v', Modifier::control).key(key::enter);
    EXPECT_EQ(edited(), start);
}

TEST_F(Color_Editor_Test, takes_text_only_while_it_is_open) {
    SDL_Window* const window = screen->window();
    script().check([window] { EXPECT_TRUE(SDL_TextInputActive(window)); }).quit();
    edited();
    EXPECT_FALSE(SDL_TextInputActive(window));
}

TEST_F(Color_Editor_Test, lists_the_named_colors_and_takes_one) {
    std::vector<Named_Color> names;
    color_data->all(names);
    for (int i = 0; i < static_cast<int>(names.size()); ++i) {
        const Color wanted = names.at(static_cast<std::size_t>(i)).color;
        script().key(key::tab).click(named(i)).key(key::enter);
        EXPECT_EQ(edited(), wanted) << i;
    }
    script().click(database_tab);
    double_click(named(5));
    EXPECT_EQ(edited(), names[5].color);
    // Two clicks on two rows are no double click; a click between the rows takes nothing.
    script().press(database_tab).click(named(5)).check([this] { double_click(named(13)); });
    EXPECT_EQ(edited(), names[13].color);
    for (const Keycode pressed :
         {key::tab, key::down, key::down, key::right, key::up, key::left, key::up, key::left, key::up}) {
        script().key(pressed);
    }
    script().click(data_tab).click(more(Color_Channel::blue)).press(ok);
    EXPECT_EQ(edited(), Color(196, 2, 53));
    const auto is_marked = [](int row) {
        return pixel_at({named(row).x, named(row).y + 10}) == standard_color(Standard_Color::list_active);
    };
    script().key(key::tab).click(named(3)).motion(database_tab).check([&] {
        EXPECT_TRUE(is_marked(3) && !is_marked(4));
    });
    script().key(key::escape);
    EXPECT_EQ(edited(), start);
}

} // namespace
} // namespace quadrelle::testing
