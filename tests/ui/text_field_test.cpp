#include "ui/text_field.h"

#include "screen/screen.h"
#include "tests/support/window_test.h"
#include "ui/shown_text.h"

#include <SDL3/SDL.h>

namespace quadrelle::testing {
namespace {

const std::string broken = "\xff"
                           "a\xc3"
                           "b\xe6\x97";

constexpr std::size_t limit = 4000;

class Text_Field_Test : public Window_Test {
protected:
    Text_Change type(const std::string& text) {
        Input_Event event{.kind = Input_Kind::typed_text};
        event.text = text;
        return field_.handle(event);
    }
    void press(const std::vector<Keycode>& keys, Modifier modifier = Modifier::none) {
        for (const Keycode pressed : keys) {
            field_.handle({.kind = Input_Kind::key_press, .chord = {pressed, modifier}});
        }
    }
    void click(int x, int clicks = 1) {
        Input_Event event{.kind = Input_Kind::button_press};
        event.pointer = {static_cast<float>(x), static_cast<float>(area_.y + 5), Mouse_Button::left};
        event.clicks = clicks;
        field_.handle(event);
    }

    static constexpr Rectangle area_{100, 100, 200, 29};
    Text_Field field_{area_, Font::regular, limit};
};

TEST_F(Text_Field_Test, edits_whole_characters) {
    EXPECT_EQ(type("aü日z"), Text_Change::changed);
    press({key::left, key::backspace});
    EXPECT_EQ(field_.text(), "aüz");
    press({key::home, key::left, key::delete_key, key::right, key::right, key::right, key::delete_key});
    EXPECT_EQ(field_.text(), "üz");
    press({key::home, key::backspace});
    type("\x1b\n1\x7f");
    press({key::end, 'a'});
    type("2");
    EXPECT_EQ(field_.text(), "1üz2");
}

TEST_F(Text_Field_Test, replaces_all_that_is_selected) {
    field_.set_text("abc");
    press({'a'}, Modifier::control);
    type("d");
    EXPECT_EQ(field_.text(), "d");
    click(area_.right() - 5, 2);
    press({key::backspace, key::backspace});
    EXPECT_EQ(field_.text(), "");
    field_.set_text("abc");
    field_.select_all();
    press({key::left});
    SDL_SetClipboardText("\n日/x\n");
    press({'v'}, Modifier::control);
    EXPECT_EQ(field_.text(), "日/xabc");
    field_.select_all();
    press({'v'}, Modifier::control);
    EXPECT_EQ(field_.text(), "日/x");
}

TEST_F(Text_Field_Test, keeps_what_is_no_text_byte_by_byte) {
    field_.set_text(broken);
    EXPECT_EQ(field_.text(), broken);
    EXPECT_EQ(shown_text(broken), "?a?b??");
    EXPECT_EQ(shown_text("caf\xc3\xa9 \xc5\x81\xc3\xb3"
                         "d\xc5\xba \xc3\x9f\xe2\x80\x93\xc3\xbf \xc8\x98"),
              "cafe Lodz s-y S");
    EXPECT_EQ(shown_text("\xe6\x97\xa5\xf0\x9f\x8d\x8e"), "??") << "without any like them";
    press({key::backspace, key::backspace});
    EXPECT_EQ(field_.text(), broken.substr(0, 4));
}

TEST_F(Text_Field_Test, shows_no_more_than_has_room) {
    type(std::string(2 * limit, 'W'));
    EXPECT_EQ(field_.text().size(), limit);
    screen->clear();
    for (const Keycode moved : {key::end, key::left, key::home}) {
        press({moved});
        field_.draw(Focus::yes);
        EXPECT_TRUE(has_picture(area_.inset(3)));
        EXPECT_FALSE(has_picture({area_.right(), area_.y, 30, area_.height}));
        EXPECT_FALSE(has_picture({area_.x - 30, area_.y, 30, area_.height}));
        EXPECT_FALSE(has_picture({area_.right() - 5, area_.y + 1, 4, area_.height - 2}));
    }
}

TEST_F(Text_Field_Test, puts_the_caret_where_it_is_clicked) {
    type("WWiW");
    click(area_.x + 6 + screen->text_width(Font::regular, "W") + 1);
    type("1");
    click(area_.right() - 1);
    type("2");
    click(area_.x);
    type("3");
    EXPECT_EQ(field_.text(), "3W1WiW2");
}

} // namespace
} // namespace quadrelle::testing
