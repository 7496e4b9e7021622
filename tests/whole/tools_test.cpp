#include "tests/whole/program_test.h"

#include "commands/command_table.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"

#include <algorithm>
#include <vector>

namespace quadrelle::testing {
namespace {

constexpr Color black(0, 0, 0);
constexpr Color white(255, 255, 255);
constexpr Color red(200, 30, 40);

class Tools_Test : public Program_Test {
protected:
    static std::vector<Color> pixels() {
        const auto span = document().tileset().current_tile()->pixels();
        return {span.begin(), span.end()};
    }
    static int count(Color color) { return static_cast<int>(std::ranges::count(pixels(), color)); }

    void drag(std::vector<Tile_Point> path, Mouse_Button button = Mouse_Button::left) {
        std::vector<Point> points;
        for (const Tile_Point point : path) {
            points.push_back(cell(point.x, point.y));
        }
        script().press(points.front(), button);
        for (const Point point : points) {
            script().motion(point);
        }
        script().release(points.back(), button);
        play();
    }
};

TEST_F(Tools_Test, icons_and_list_select_through_the_command) {
    // The icons stand below each other from the top of the bar, with gaps between the groups.
    script().click({796, 40 + 24 * 7 + 2 * 7 + 24 * 2});
    play();
    EXPECT_EQ(toolbox->current_command(), Command::rectangle);
    EXPECT_EQ(toolbox->state().canvas_action(), Canvas_Action::rectangle_filled);
    script().click({796, 40 + 24 * 7 + 2 * 7 + 24});
    play();
    EXPECT_EQ(toolbox->state().canvas_action(), Canvas_Action::rectangle_outline);
    // The rectangle's rows cover the entry below it; the entries above can be clicked.
    script().click({900, 32 + 26 * 4 + 10});
    play();
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
    script().click({796, 40}, Mouse_Button::right);
    play();
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
}

TEST_F(Tools_Test, right_button_of_the_pen_does_what_its_row_says) {
    drag({{1, 1}});
    execute(Command::save_history_buffer);
    tool_colors->set_color(Mouse_Button::left, red);
    drag({{1, 1}, {3, 1}});
    toolbox->options().right_button_mode = Right_Button_Mode::history;
    drag({{1, 1}, {2, 1}}, Mouse_Button::right);
    EXPECT_EQ(tile_pixel(1, 1), white);
    EXPECT_EQ(tile_pixel(2, 1), black);
    EXPECT_EQ(tile_pixel(3, 1), red);
    toolbox->options().right_button_mode = Right_Button_Mode::dropper;
    drag({{1, 1}}, Mouse_Button::right);
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), white);
    EXPECT_EQ(tile_pixel(1, 1), white);
}

TEST_F(Tools_Test, dropper_picks_for_its_button_and_stays) {
    document().tileset().current_tile()->set_pixel(5, 6, red);
    script().key('d').click(cell(5, 6), Mouse_Button::right);
    play();
    EXPECT_EQ(tool_colors->color(Mouse_Button::right), red);
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), white);
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
    EXPECT_FALSE(document().is_modified());
}

TEST_F(Tools_Test, dropper_returns_to_the_tool_before_when_a_pick_ends_it) {
    const Point tick{816 + 5 + 8, 32 + 26 * 5 + 4 + (67 + 4) + 51 + 26 + 6};
    constexpr Point beside{300, 100};
    document().tileset().current_tile()->set_pixel(5, 6, red);
    execute(Command::filled_rectangle);
    script().key('d').click(tick).click(beside).drag({cell(5, 5), beside});
    play();
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
    script().press(cell(5, 6)).quit();
    play();
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
    tool_colors->reset();
    script().drag({beside, cell(5, 6)});
    play();
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), red);
    EXPECT_EQ(toolbox->state().canvas_action(), Canvas_Action::rectangle_filled);
}

// Grey, on which the lightness pen of one pixel draws; how often it touched each pixel.
class Lightness_Pen_Test : public Tools_Test {
protected:
    static constexpr int grey = 100;

    void SetUp() override {
        Tools_Test::SetUp();
        document().tileset().current_tile()->fill(Color(grey, grey, grey));
        execute(Command::lightness_pen);
    }
    static int touches(int x, int y) { return (tile_pixel(x, y).r - grey) / 2; }
    static int all_touches() {
        int sum = 0;
        for (const Color pixel : pixels()) {
            sum += (pixel.r - grey) / 2;
        }
        return sum;
    }
};

TEST_F(Lightness_Pen_Test, goes_on_while_its_button_is_held) {
    script().press(cell(4, 4));
    for (int i = 0; i < 3; ++i) {
        script().pause(20);
    }
    script().check([] { EXPECT_EQ(touches(4, 4), 4); });
    script().check([] { EXPECT_EQ(pixel_at(cell(4, 4)), Color(108, 108, 108)); });
    script().release(cell(4, 4));
    play();
    EXPECT_EQ(touches(4, 4), 4);
    script().press(cell(9, 4), Mouse_Button::right).pause(20).release(cell(9, 4), Mouse_Button::right);
    play();
    EXPECT_LT(touches(9, 4), 0);
}

// Several motions within one interval of 14 milliseconds; the step comes while the button is held or after.
TEST_F(Lightness_Pen_Test, touches_a_fast_path_once_and_skips_nothing) {
    toolbox->options().speed = Lightness_Speed::extremely_slow;
    for (const bool waits : {false, true}) {
        document().tileset().current_tile()->fill(Color(grey, grey, grey));
        script().press(cell(2, 2)).motion(cell(5, 2)).motion(cell(9, 2)).motion(cell(9, 7));
        if (waits) {
            script().pause(30);
        }
        script().release(cell(9, 7));
        play();
        for (int x = 2; x <= 9; ++x) {
            EXPECT_EQ(touches(x, 2), 1) << x;
        }
        for (int y = 3; y < 7; ++y) {
            EXPECT_EQ(touches(9, y), 1) << y;
        }
        // A slow machine may have drawn the path before the pause, and then its end again.
        EXPECT_GE(touches(9, 7), 1);
        EXPECT_LE(touches(9, 7), waits ? 2 : 1);
        EXPECT_EQ(all_touches(), 12 + touches(9, 7));
    }
}

TEST_F(Lightness_Pen_Test, quick_strokes_lose_no_pixel) {
    toolbox->options().speed = Lightness_Speed::extremely_slow;
    for (int x = 1; x < 20; x += 3) {
        script().click(cell(x, 3));
    }
    play();
    for (int x = 1; x < 20; ++x) {
        EXPECT_EQ(touches(x, 3), x % 3 == 1 ? 1 : 0) << x;
    }
}

} // namespace
} // namespace quadrelle::testing
