#include "panes/hsv_selector.h"

#include "screen/cursor.h"
#include "tests/support/window_test.h"

#include <SDL3/SDL.h>

#include <cstdlib>

namespace quadrelle::testing {
namespace {

constexpr Point position{1026, 174};
constexpr Color red{255, 0, 0};
constexpr Color unset{1, 2, 3, 4};

class HSV_Selector_Test : public Window_Test {
protected:
    struct Picked {
        Mouse_Button side;
        Color color;
        bool operator==(const Picked&) const = default;
    };

    [[nodiscard]] Point square(int x, int y) const {
        return {selector_.square_rect().x + x, selector_.square_rect().y + y};
    }
    // A press at the first point and motions to the others; the button is released at the end.
    bool drag(const std::vector<Point>& points, Mouse_Button side = Mouse_Button::left) {
        Script script;
        for (std::size_t i = 1; i < points.size(); ++i) {
            script.motion(points[i]).check([this] { seen_.push_back(last()); });
        }
        script.release(points.back(), side);
        return selector_.click(side, points.front(), [this] { selector_.draw(); });
    }
    [[nodiscard]] Color last() const { return picked_.empty() ? unset : picked_.back().color; }

    std::vector<Picked> picked_;
    std::vector<Color> seen_; // the last picked colour after each motion
    HSV_Selector selector_{position, [this](Mouse_Button side, Color color) {
                               picked_.push_back({side, color});
                           }};
};

// Straight lines between the corners: white and the hue above, black below. Both gradients truncate.
TEST_F(HSV_Selector_Test, square_runs_from_white_and_the_hue_to_black) {
    for (const Color hue : {red, Color(0, 254, 255), Color(130, 0, 255)}) {
        selector_.set_hue(hue);
        selector_.draw();
        for (int i = 0; i < 128 * 128; i += 3) {
            const double light = 1.0 - i / 128 / 127.0;
            const double share = i % 128 / 127.0;
            const Color shown = pixel_at(square(i % 128, i / 128));
            for (int channel = 0; channel < 3; ++channel) {
                const double exact = light * (255 * (1 - share) + hue.channel(channel) * share);
                ASSERT_NEAR(shown.channel(channel), exact - 1.0, 1.01) << i % 128 << ", " << i / 128;
            }
        }
        EXPECT_EQ(pixel_at(square(0, 0)), Color(255, 255, 255));
        EXPECT_EQ(pixel_at(square(127, 0)), hue);
    }
}

struct Drag {
    Point from;
    Point to;
    Point held; // where the pointer is kept
};

TEST_F(HSV_Selector_Test, a_drag_from_the_square_stays_in_it_and_picks_for_its_side) {
    for (const Mouse_Button side : {Mouse_Button::left, Mouse_Button::right}) {
        for (const Drag& test : {Drag{{10, 20}, {10, 20}, {10, 20}},
                                 {{10, 20}, {300, 30}, {127, 30}},
                                 {{10, 20}, {-400, 30}, {0, 30}},
                                 {{10, 20}, {64, -150}, {64, 0}},
                                 {{10, 20}, {64, 400}, {64, 127}},
                                 {{10, 20}, {-5, -5}, {0, 0}},
                                 {{10, 20}, {128, 128}, {127, 127}},
                                 {{10, 20}, {150, 64}, {127, 64}}}) {
            selector_.draw();
            const Color first = pixel_at(square(test.from.x, test.from.y));
            const Color held = pixel_at(square(test.held.x, test.held.y));
            picked_.clear();
            seen_.clear();
            EXPECT_TRUE(drag({square(test.from.x, test.from.y), square(test.to.x, test.to.y)}, side));
            EXPECT_EQ(picked_.front(), (Picked{side, first}));
            EXPECT_EQ(picked_.back(), (Picked{side, held})) << test.to.x << ", " << test.to.y;
            EXPECT_EQ(seen_, std::vector{held});
        }
    }
}

TEST_F(HSV_Selector_Test, a_marker_stands_for_the_hidden_pointer_until_the_button_is_released) {
    selector_.draw();
    const Point ring{square(60, 60).x - 5 + 2, square(60, 60).y - 5 + 2};
    int held_outside = 0;
    const auto expect_marker = [&] {
        EXPECT_EQ(current_cursor(), Cursor::hidden);
        EXPECT_TRUE(has_picture({ring.x - 2, ring.y - 2, 11, 11}));
        ++held_outside;
    };
    const auto contrast = [&] { return std::abs(pixel_at({ring.x + 3, ring.y - 2}).g - last().g); };
    Script script;
    script.check(expect_marker)
        .check([&] { EXPECT_GT(contrast(), 40); })
        .key('a')
        .check(expect_marker)
        .release(square(60, 60));
    EXPECT_TRUE(selector_.click(Mouse_Button::left, square(60, 60), [this] { selector_.draw(); }));
    EXPECT_EQ(held_outside, 2);
    EXPECT_EQ(current_cursor(), Cursor::shown);
    selector_.draw();
    EXPECT_LT(contrast(), 40);
}

TEST_F(HSV_Selector_Test, the_pointer_is_brought_back_and_the_end_leaves_no_event_but_quit) {
    Script script;
    script.motion(square(500, 64))
        .check([this] {
            float x = 0;
            float y = 0;
            SDL_GetMouseState(&x, &y);
            EXPECT_EQ((Point{static_cast<int>(x), static_cast<int>(y)}), square(127, 64));
        })
        .quit();
    EXPECT_TRUE(selector_.click(Mouse_Button::left, square(60, 60), [this] { selector_.draw(); }));
    EXPECT_TRUE(script.is_played());
    EXPECT_FALSE(SDL_HasEvents(SDL_EVENT_QUIT, SDL_EVENT_MOUSE_WHEEL));

    // What came together with the release.
    script
        .check([] {
            SDL_Event released{.type = SDL_EVENT_MOUSE_BUTTON_UP};
            released.button.button = SDL_BUTTON_LEFT;
            SDL_PushEvent(&released);
            SDL_Event closed{.type = SDL_EVENT_QUIT};
            SDL_PushEvent(&closed);
        })
        .motion(square(70, 70));
    EXPECT_TRUE(selector_.click(Mouse_Button::left, square(60, 60), [this] { selector_.draw(); }));
    EXPECT_FALSE(SDL_HasEvent(SDL_EVENT_MOUSE_MOTION));
    EXPECT_TRUE(SDL_HasEvent(SDL_EVENT_QUIT));
}

} // namespace
} // namespace quadrelle::testing
