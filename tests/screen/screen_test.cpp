#include "screen/screen.h"

#include "color/standard_colors.h"
#include "screen/sprite_sheet.h"
#include "screen/streaming_texture.h"
#include "tests/support/window_test.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <array>
#include <vector>

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

void draw_frame_with(const Rectangle& area, Color color) {
    screen->clear();
    screen->fill_rect({0, 0, 300, 200}, backdrop);
    screen->fill_rect(area, color);
    screen->present();
}

TEST_F(Screen_Test, draws_what_has_changed_and_all_that_was_lost) {
    constexpr Color dirt(1, 2, 3);
    constexpr Point far_away{900, 500};
    const Color ground = standard_color(Standard_Color::frame);
    draw_frame_with(box, {255, 0, 0});
    screen->pixels().row(far_away.y)[far_away.x] = dirt;
    EXPECT_EQ(pixel_at(far_away), dirt) << "nothing is drawn there again";
    SDL_Event uncovered{};
    uncovered.type = SDL_EVENT_WINDOW_EXPOSED;
    SDL_PushEvent(&uncovered);
    draw_frame_with({100, 100, 3, 3}, {255, 0, 0});
    EXPECT_EQ(pixel_at({box.x, box.y}), backdrop);
    EXPECT_EQ(pixel_at({100, 100}), Color(255, 0, 0));
    EXPECT_EQ(pixel_at(far_away), ground);
}

TEST_F(Screen_Test, an_image_shows_as_it_was_when_it_was_drawn) {
    std::vector<Color> pixels(4, Color(255, 0, 0));
    Streaming_Texture texture(pixels, {2, 2});
    texture.draw_part({0, 0, 2, 2}, {10, 10, 2, 2});
    pixels.assign(4, Color(0, 255, 0));
    texture.upload(pixels);
    texture.draw_part({0, 0, 2, 2}, {20, 10, 4, 4});
    EXPECT_EQ(pixel_at({11, 11}), Color(255, 0, 0));
    EXPECT_EQ(pixel_at({23, 13}), Color(0, 255, 0));
}

// Squares of 16 pixels, so what is added and a little around it.
TEST(Region, becomes_rectangles_that_share_no_pixel) {
    constexpr Size window{100, 70};
    Region region(window);
    EXPECT_TRUE(region.rectangles().empty());
    const std::array<Rectangle, 5> areas{
        {{-5, -5, 7, 7}, {40, 3, 1, 60}, {42, 20, 50, 1}, {95, 65, 50, 50}, {200, 0, 10, 10}}};
    for (const Rectangle& area : areas) {
        region.add(area);
    }
    const std::vector<Rectangle> found = region.rectangles();
    for (int y = 0; y < window.height; ++y) {
        for (int x = 0; x < window.width; ++x) {
            const auto holds_pixel = [=](const Rectangle& area) { return area.contains({x, y}); };
            const auto is_near = [=](const Rectangle& area) {
                const Rectangle square{x / 16 * 16, y / 16 * 16, 16, 16};
                return !intersection(intersection(area, square), {0, 0, window.width, window.height})
                            .is_empty();
            };
            EXPECT_EQ(std::ranges::count_if(found, holds_pixel), std::ranges::any_of(areas, is_near) ? 1 : 0)
                << x << ", " << y;
        }
    }
}

} // namespace
} // namespace quadrelle::testing
