#include "ui/text_field.h"

#include "app/screen.h"
#include "tests/support/window_test.h"
#include "ui/shown_text.h"

#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

const std::string broken = "\xff"
                           "a\xc3"
                           "b\xe6\x97";

class Text_Field_Test : public Window_Test {
protected:
    void press(const std::vector<Keycode>& keys) {
        for (const Keycode pressed : keys) {
            EXPECT_TRUE(field_.handle_key(pressed));
        }
    }

    static constexpr Rectangle area_{100, 100, 200, Text_Field::height};
    Text_Field field_{area_};
};

TEST_F(Text_Field_Test, edits_whole_characters) {
    field_.insert("aü日z");
    press({key::left, key::backspace});
    EXPECT_EQ(field_.text(), "aüz");
    press({key::home, key::left, key::delete_key, key::right, key::right, key::right, key::delete_key});
    EXPECT_EQ(field_.text(), "üz");
    press({key::home, key::backspace});
    field_.insert("\x1b\n1\x7f");
    press({key::end});
    field_.insert("2");
    EXPECT_EQ(field_.text(), "1üz2");
    EXPECT_FALSE(field_.handle_key('a'));
}

TEST_F(Text_Field_Test, keeps_what_is_no_text_byte_by_byte) {
    field_.set_text(broken);
    EXPECT_EQ(field_.text(), broken);
    EXPECT_EQ(shown_text(broken), "?a?b??");
    press({key::backspace, key::backspace});
    EXPECT_EQ(field_.text(), broken.substr(0, 4));
}

TEST_F(Text_Field_Test, shows_no_more_than_has_room) {
    field_.insert(std::string(2 * Text_Field::most_characters, 'W'));
    EXPECT_EQ(field_.text().size(), Text_Field::most_characters);
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
    field_.insert("WWiW");
    const int letter = screen->text_width(Font::regular, "W");
    field_.place_caret({area_.x + 6 + letter + 1, area_.y + 5});
    field_.insert("1");
    field_.place_caret({area_.right() - 1, area_.y + 5});
    field_.insert("2");
    field_.place_caret({area_.x, area_.y + 5});
    field_.insert("3");
    EXPECT_EQ(field_.text(), "3W1WiW2");
}

TEST_F(Text_Field_Test, fits_any_text_into_any_width) {
    std::string name = "x.qdl";
    name.insert(0, 250, 'x');
    for (int width = 20; width < 2600; width += 43) {
        for (const Left_Out left_out : {Left_Out::start, Left_Out::middle}) {
            const std::string fitted = fitted_text(Font::regular, name, width, left_out);
            EXPECT_LE(screen->text_width(Font::regular, fitted), width);
            if (width > 100) {
                EXPECT_TRUE(fitted.ends_with(".qdl"));
            }
        }
    }
    EXPECT_EQ(fitted_text(Font::regular, name, 9999, Left_Out::middle), name);
    EXPECT_EQ(fitted_text(Font::regular, "", 0, Left_Out::middle), "");
}

} // namespace
} // namespace quadrelle::testing
