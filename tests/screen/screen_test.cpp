#include "screen/screen.h"

#include "screen/sprite_sheet.h"
#include "tests/support/window_test.h"

#include <SDL3/SDL.h>

namespace quadrelle::testing {
namespace {

constexpr Color backdrop(9, 9, 9);
constexpr Rectangle box{20, 30, 8, 6};

class Screen_Test : public Window_Test {
protected:
    Screen_Test() { screen->fill_rect({0, 0, 300, 200}, backdrop); }
};

TEST_F(Screen_Test, fills_lines_and_outlines_cover_exactly_their_pixels) {
    screen->draw_outline(box, {255, 0, 0});
    for (int y = box.y - 1; y <= box.bottom(); ++y) {
        for (int x = box.x - 1; x <= box.right(); ++x) {
            const bool is_edge = box.contains({x, y}) && !box.inset(1).contains({x, y});
            EXPECT_EQ(pixel_at({x, y}), is_edge ? Color(255, 0, 0) : backdrop) << x << ", " << y;
        }
    }
    screen->draw_line({50, 60}, {54, 60}, {0, 255, 0});
    EXPECT_EQ(pixel_at({50, 60}), Color(0, 255, 0));
    EXPECT_EQ(pixel_at({54, 60}), Color(0, 255, 0));
    EXPECT_EQ(pixel_at({55, 60}), backdrop);
    // Translucent colours blend.
    screen->fill_rect({70, 60, 1, 1}, {209, 9, 9, 128});
    EXPECT_NEAR(pixel_at({70, 60}).r, 109, 1);
    EXPECT_EQ(pixel_at({71, 60}), backdrop);
}

TEST_F(Screen_Test, text_skips_what_has_no_glyph) {
    for (const Font font : {Font::regular, Font::pane, Font::pane_header, Font::header}) {
        const int width = screen->text_width(font, "Tile 7");
        EXPECT_GT(width, 0);
        EXPECT_EQ(screen->text_width(font, "T\ti\x1fle\n \xff\x80"
                                           "7"),
                  width);
        EXPECT_EQ(screen->draw_text(font, {100, 50}, "T\xc3ile 7").x, 100 + width);
    }
}

TEST_F(Screen_Test, text_breaks_its_lines) {
    const int line = line_height(Font::regular);
    EXPECT_EQ(screen->text_height(Font::regular, ""), line);
    EXPECT_EQ(screen->text_height(Font::regular, "a\r\rb"), 3 * line);
    EXPECT_EQ(screen->text_width(Font::regular, "a\rbbb\rcc"), screen->text_width(Font::regular, "bbb"));
    const Point end = screen->draw_text(Font::regular, {100, 20}, "aaa\r\rb");
    EXPECT_EQ(end, (Point{100 + screen->text_width(Font::regular, "b"), 20 + 2 * line}));
    EXPECT_TRUE(has_picture({100, 20, 30, line}));
    EXPECT_FALSE(has_picture({100, 20 + line, 30, line}));
    EXPECT_TRUE(has_picture({100, 20 + 2 * line, 10, line}));
}

} // namespace
} // namespace quadrelle::testing
