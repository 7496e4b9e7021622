#include "ui/wrapped_text.h"

#include "screen/screen.h"
#include "tests/support/window_test.h"
#include "ui/shown_text.h"

namespace quadrelle::testing {
namespace {

using Wrapped_Text_Test = Window_Test;
using Lines = std::vector<std::string>;

constexpr Font font = Font::pane;

TEST_F(Wrapped_Text_Test, breaks_where_it_should) {
    const int width = screen->text_width(font, "four words");
    EXPECT_EQ(wrapped_text(font, "four words fit not", width), (Lines{"four words", "fit not"}));
    EXPECT_EQ(wrapped_text(font, "four\rwords", width), (Lines{"four", "words"}));
    EXPECT_EQ(wrapped_text(font, "a\r\rb\r", width), (Lines{"a", "", "b", ""}));
    EXPECT_EQ(wrapped_text(font, "", width), Lines{""});
    EXPECT_EQ(wrapped_text(font, " four", width), Lines{" four"});
    EXPECT_EQ(wrapped_text(font, "abc", 1), (Lines{"a", "b", "c"}));
}

TEST_F(Wrapped_Text_Test, loses_nothing_and_fits_at_every_width) {
    const std::string text = "Words, averylongonethathasnoblankinit and  two blanks and/some/path/of/a file";
    for (int width = 12; width < 600; width += 7) {
        std::string letters;
        for (const std::string& line : wrapped_text(font, text, width)) {
            EXPECT_LE(screen->text_width(font, line), width);
            letters += line;
        }
        std::erase(letters, ' ');
        std::string expected = text;
        std::erase(expected, ' ');
        EXPECT_EQ(letters, expected) << width;
    }
}

TEST_F(Wrapped_Text_Test, shows_that_lines_are_left_out) {
    const int width = screen->text_width(font, "wide enough");
    EXPECT_EQ(fitted_text(font, "wide enough", width, Left_Out::middle), "wide enough");
    EXPECT_NE(fitted_text(font, "wide enough", width - 1, Left_Out::middle), "wide enough");
    EXPECT_EQ(first_lines(font, {"one", "two"}, 2, width), (Lines{"one", "two"}));
    EXPECT_EQ(first_lines(font, {"one", "two"}, 1, width), Lines{"one..."});
    const Lines cut = first_lines(font, {"wide enough", "two"}, 1, width);
    EXPECT_LE(screen->text_width(font, cut.front()), width);
    EXPECT_EQ(cut.front(), "wide...") << "whole words only";
    EXPECT_EQ(first_lines(font, {"options:", "two"}, 1, width), Lines{"options..."});
    const Lines one_word = first_lines(font, {"wideenoughh", "two"}, 1, width);
    EXPECT_TRUE(one_word.front().starts_with("wideen") && one_word.front().ends_with("..."));
    EXPECT_EQ(joined_lines({"", "a", "", "b"}), "\ra\r\rb");
}

} // namespace
} // namespace quadrelle::testing
