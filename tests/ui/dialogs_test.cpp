#include "ui/dialogs.h"

#include "base/debug_monitor.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "tests/support/window_test.h"
#include "ui/number_prompt.h"
#include "views/log_view.h"

namespace quadrelle::testing {
namespace {

class Dialogs_Test : public Window_Test {};

constexpr Point middle{616, 332};

// Where the button row of a dialog with that many lines of text is; its frame is centred.
constexpr int button_y(int lines) {
    const int height = 24 + 7 + 23 * lines + 7 + 27 + 7;
    return (664 - height) / 2 + height - 7 - 13;
}

class Number_Prompt_Test : public Dialogs_Test {
protected:
    std::optional<int> answer(const std::function<void(Script&)>& user, Point position = middle) {
        Script script;
        user(script);
        const std::optional<int> number = ask_number(position, 24, 6, 64);
        EXPECT_TRUE(script.is_played());
        return number;
    }
};

} // namespace

TEST_F(Dialogs_Test, message_waits_until_it_is_dismissed) {
    Script script;
    for (const Keycode pressed : {key::enter, Keycode{'y'}, key::escape}) {
        script.motion(middle).key('n').key(pressed);
        dialogs->message("Note", "One line\rand a second one");
        EXPECT_TRUE(script.is_played());
    }
    script.quit();
    dialogs->message("Note", "");
    script.press({middle.x, button_y(2) - 27}).press({middle.x, button_y(2)});
    dialogs->message("Note", "One line\rand a second one");
    EXPECT_TRUE(script.is_played());
}

TEST_F(Dialogs_Test, ask_takes_only_an_explicit_yes) {
    const std::string question = "Save over existing file?";
    const int half_width = screen->text_width(Font::regular, question) / 2;
    const auto answer = [&](const std::function<void(Script&)>& user) {
        Script script;
        user(script);
        const bool is_yes = dialogs->ask("Save", question);
        EXPECT_TRUE(script.is_played());
        return is_yes;
    };
    EXPECT_TRUE(answer([](Script& user) { user.key(key::enter); }));
    EXPECT_TRUE(answer([](Script& user) { user.key('y'); }));
    EXPECT_TRUE(answer([](Script& user) { user.key(key::keypad_enter); }));
    EXPECT_TRUE(answer([&](Script& user) { user.press({middle.x - half_width + 10, button_y(1)}); }));
    EXPECT_FALSE(answer([](Script& user) { user.key('n').key(key::escape); }));
    EXPECT_FALSE(answer([](Script& user) { user.quit(); }));
    EXPECT_FALSE(answer([&](Script& user) { user.press({middle.x + half_width - 10, button_y(1)}); }));
}

TEST_F(Number_Prompt_Test, return_accepts_what_was_typed) {
    const auto typed = [this](std::string_view text, const std::vector<Keycode>& keys) {
        return answer([&](Script& user) {
            user.type(text);
            std::ranges::for_each(keys, [&](Keycode pressed) { user.key(pressed); });
        });
    };
    EXPECT_EQ(typed("32", {key::enter}), 32);
    EXPECT_EQ(typed("6", {key::keypad_enter}), 6);
    EXPECT_EQ(typed("064", {key::enter}), 64);
    EXPECT_EQ(typed("", {key::enter}), 24);
    EXPECT_EQ(typed("", {key::keypad_1 + 4, key::keypad_0, key::enter}), 50);
    EXPECT_EQ(typed("3a-.5", {'y'}), 35);
    EXPECT_EQ(
        answer([](Script& user) { user.type("3").key('1', Modifier::control).key('2').key(key::enter); }),
        32);
    EXPECT_EQ(typed("327", {key::backspace, key::enter}), 32);
    EXPECT_EQ(typed("", {key::backspace, '5', key::enter}), 25);
    EXPECT_EQ(typed("", {key::backspace, key::backspace, key::backspace, '7', key::enter}), 7);
    EXPECT_EQ(typed("", {key::backspace, key::backspace, key::enter, '9', key::enter}), 9);
    EXPECT_EQ(typed("32", {key::escape}), std::nullopt);
}

TEST_F(Number_Prompt_Test, takes_negative_numbers_where_there_are_any) {
    const auto signed_answer = [](std::string_view typed, Keycode last = key::enter) {
        Script script;
        script.type(typed).key(last);
        const std::optional<int> number = ask_number(middle, 24, -180, 180);
        EXPECT_TRUE(script.is_played());
        return number;
    };
    EXPECT_EQ(signed_answer("-180"), -180);
    EXPECT_EQ(signed_answer("1-7"), -17);
    EXPECT_EQ(signed_answer("-1-"), 1);
    EXPECT_EQ(signed_answer("-", key::escape), std::nullopt);
    Script script;
    script.type("-").key(key::enter).type("181").key(key::enter).key(key::backspace).key(key::enter);
    EXPECT_EQ(ask_number(middle, 24, -180, 180), -18);
}

TEST_F(Number_Prompt_Test, stays_open_outside_of_the_bounds) {
    const auto refuses = [this](std::string_view digits) {
        return answer([&](Script& user) {
            user.type(digits).key(key::enter).check_loop([](std::string_view loop) {
                EXPECT_EQ(loop, "number prompt");
            });
            user.key(key::escape);
        });
    };
    EXPECT_EQ(refuses("5"), std::nullopt);
    EXPECT_EQ(refuses("65"), std::nullopt);
    EXPECT_EQ(refuses("99999999999999999999999999"), std::nullopt);
}

TEST_F(Number_Prompt_Test, can_be_given_up) {
    EXPECT_EQ(answer([](Script& user) { user.type("32").quit(); }), std::nullopt);
    EXPECT_EQ(answer([](Script& user) { user.type("32").press({10, 10}); }), std::nullopt);
    constexpr int middle_button = 2;
    EXPECT_EQ(answer([](Script& user) {
                  user.type("32").press_number({10, 10}, middle_button).key(key::enter);
              }),
              32);
    const Point inside{middle.x + 30, middle.y + 30};
    EXPECT_EQ(answer([&](Script& user) { user.press(inside).type("32").key(key::enter); }), 32);
}

TEST_F(Number_Prompt_Test, stays_inside_the_window) {
    for (const Point position : {Point{0, 0}, Point{1231, 663}, Point{1231, 0}, Point{-50, 900}}) {
        const Point inside{std::clamp(position.x, 20, 1212), std::clamp(position.y, 20, 644)};
        EXPECT_EQ(answer([&](Script& user) { user.press(inside).type("7").key(key::enter); }, position), 7);
    }
}

} // namespace quadrelle::testing
