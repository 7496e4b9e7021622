#include "screen/screen.h"

#include "screen/sprite_sheet.h"
#include "screen/surface.h"
#include "tests/support/window_test.h"

#include <SDL3/SDL.h>

namespace quadrelle::testing {
namespace {

constexpr Color backdrop(9, 9, 9);
constexpr Rectangle box{20, 30, 8, 6};

constexpr Color grey(int value) {
    return {value, value, value};
}

class Screen_Test : public Window_Test {
protected:
    void SetUp() override {
        Window_Test::SetUp();
        screen->fill_rect({0, 0, 300, 200}, backdrop);
    }

    struct Edges {
        Color top_left, top, top_right, left, inside, right, bottom_left, bottom, bottom_right;
    };
    static void expect_edges(const Edges& edges) {
        const int right = box.right() - 1;
        const int bottom = box.bottom() - 1;
        EXPECT_EQ(pixel_at({box.x, box.y}), edges.top_left);
        EXPECT_EQ(pixel_at({right, box.y}), edges.top_right);
        EXPECT_EQ(pixel_at({box.x, bottom}), edges.bottom_left);
        EXPECT_EQ(pixel_at({right, bottom}), edges.bottom_right);
        for (const int x : {box.x + 1, right - 1}) {
            EXPECT_EQ(pixel_at({x, box.y}), edges.top);
            EXPECT_EQ(pixel_at({x, bottom}), edges.bottom);
        }
        for (const int y : {box.y + 1, bottom - 1}) {
            EXPECT_EQ(pixel_at({box.x, y}), edges.left);
            EXPECT_EQ(pixel_at({right, y}), edges.right);
            EXPECT_EQ(pixel_at({box.x + 1, y}), edges.inside);
            EXPECT_EQ(pixel_at({right - 1, y}), edges.inside);
        }
        for (const Point outside :
             {Point{box.x - 1, box.y}, {box.right(), box.y}, {box.x, box.y - 1}, {box.x, box.bottom()}}) {
            EXPECT_EQ(pixel_at(outside), backdrop);
        }
    }
};

// The luminance of grey 112 is 0.16203: edges 41.3 lighter and darker, corners 13.8 more.
TEST_F(Screen_Test, bevel_stands_out_by_the_luminance) {
    screen->draw_bevel(box, grey(112), Bevel::raised);
    expect_edges(
        {grey(166), grey(153), grey(112), grey(153), backdrop, grey(70), grey(112), grey(70), grey(56)});
    screen->draw_bevel(box, grey(112), Bevel::sunken);
    expect_edges(
        {grey(56), grey(70), grey(112), grey(70), backdrop, grey(153), grey(112), grey(153), grey(166)});
}

// Of (200, 100, 50): 0.2126 * 0.57758 + 0.7152 * 0.12744 + 0.0722 * 0.03190 = 0.21624, edges by 55.1.
TEST_F(Screen_Test, panel_fills_its_bevel) {
    screen->draw_panel(box, {200, 100, 50, 255});
    const Color light(255, 155, 105);
    const Color dark(144, 44, 0);
    const Color base(200, 100, 50);
    expect_edges({{255, 173, 123}, light, base, light, base, dark, base, dark, {125, 25, 0}});
}

TEST_F(Screen_Test, fills_lines_and_outlines_cover_exactly_their_pixels) {
    screen->draw_outline(box, {255, 0, 0});
    const Color red(255, 0, 0);
    expect_edges({red, red, red, red, backdrop, red, red, red, red});
    screen->draw_line({50, 60}, {54, 60}, {0, 255, 0});
    EXPECT_EQ(pixel_at({50, 60}), Color(0, 255, 0));
    EXPECT_EQ(pixel_at({54, 60}), Color(0, 255, 0));
    EXPECT_EQ(pixel_at({55, 60}), backdrop);
    // Translucent colours blend.
    screen->fill_rect({70, 60, 1, 1}, {209, 9, 9, 128});
    EXPECT_NEAR(pixel_at({70, 60}).r, 109, 1);
    EXPECT_EQ(pixel_at({71, 60}), backdrop);
}

TEST_F(Screen_Test, sprites_show_the_sheet_around_their_key_colour) {
    constexpr Point corner{40, 40};
    const Rectangle source = sprite_rect(Sprite::icon_pen);
    screen->draw_sprite(Sprite::icon_pen, corner);
    int shown = 0;
    for (int y = 0; y < source.height; ++y) {
        for (int x = 0; x < source.width; ++x) {
            const Rgba_Quad sheet = screen->sprites().surface().get_pixel(source.x + x, source.y + y);
            const Color expected = sheet.a == 0 ? backdrop : Color(sheet.r, sheet.g, sheet.b);
            EXPECT_EQ(pixel_at({corner.x + x, corner.y + y}), expected) << x << "," << y;
            shown += sheet.a == 0 ? 0 : 1;
        }
    }
    EXPECT_GT(shown, 20);
    EXPECT_EQ(pixel_at({corner.x + source.width, corner.y}), backdrop);
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

TEST_F(Screen_Test, window_carries_product_and_version_in_its_title) {
    SDL_Window* window = SDL_GetRenderWindow(screen->renderer());
    EXPECT_STREQ(SDL_GetWindowTitle(window), "Quadrelle");
    screen->set_title("tïles.qdl*");
    EXPECT_STREQ(SDL_GetWindowTitle(window), "Quadrelle 0.90 - tïles.qdl*");
    EXPECT_EQ(screen->text_rows(), 28);
    EXPECT_FALSE(screen->renderer_name().empty());
}

} // namespace
} // namespace quadrelle::testing
