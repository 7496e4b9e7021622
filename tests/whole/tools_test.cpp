#include "tests/whole/program_test.h"

#include "app/command_table.h"
#include "app/strokes.h"
#include "tools/tool_colors.h"
#include "tools/toolbox.h"

#include <algorithm>
#include <string>
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
    static void choose(Tool_Option option, int value) { toolbox->options().set_value(option, value); }
};

TEST_F(Tools_Test, shapes_show_while_dragging_what_the_release_commits) {
    struct Case {
        Command command;
        int pixels;
    };
    for (const auto& [command, expected] :
         {Case{Command::line, 5}, Case{Command::rectangle, 16}, Case{Command::filled_rectangle, 25},
          Case{Command::circle, 0}, Case{Command::filled_circle, 0}}) {
        SCOPED_TRACE(menu_text(command));
        document().tileset().current_tile()->fill(black);
        execute(command);
        std::vector<Color> shown;
        // A detour leaves nothing behind.
        script().press(cell(10, 10)).motion(cell(20, 3)).motion(cell(14, 14));
        script().check([&shown] { shown = pixels(); }).release(cell(14, 14));
        play();
        EXPECT_EQ(pixels(), shown);
        EXPECT_EQ(tile_pixel(20, 3), black);
        if (expected > 0) {
            EXPECT_EQ(count(white), expected);
        }
    }
    EXPECT_EQ(tile_pixel(10, 10), white);
    EXPECT_EQ(tile_pixel(14, 14), black);
    EXPECT_EQ(tile_pixel(10, 14), white);
}

TEST_F(Tools_Test, the_other_button_colours_the_inside) {
    tool_colors->set_color(Mouse_Button::right, red);
    execute(Command::rectangle);
    choose(Tool_Option::rectangle_type, 2);
    drag({{2, 2}, {4, 4}});
    EXPECT_EQ(count(red), 1);
    EXPECT_EQ(count(white), 8);
    drag({{2, 2}, {4, 4}}, Mouse_Button::right);
    EXPECT_EQ(tile_pixel(3, 3), white);
    EXPECT_EQ(count(red), 8);
}

TEST_F(Tools_Test, icons_and_list_select_through_the_command) {
    // The icons stand below each other from the top of the bar, with gaps between the groups.
    script().click({796, 40 + 24 * 7 + 2 * 7 + 24 * 2});
    play();
    EXPECT_EQ(toolbox->current_command(), Command::rectangle);
    EXPECT_EQ(toolbox->canvas_action(), Canvas_Action::rectangle_filled);
    script().click({796, 40 + 24 * 7 + 2 * 7 + 24});
    play();
    EXPECT_EQ(toolbox->canvas_action(), Canvas_Action::rectangle_outline);
    // The rectangle's rows cover the entry below it; the entries above can be clicked.
    script().click({900, 32 + 26 * 4 + 10});
    play();
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
    script().click({796, 40}, Mouse_Button::right);
    play();
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
}

TEST_F(Tools_Test, dropper_picks_for_its_button_and_returns_where_told) {
    document().tileset().current_tile()->set_pixel(5, 6, red);
    script().key('d').click(cell(5, 6), Mouse_Button::right);
    play();
    EXPECT_EQ(tool_colors->color(Mouse_Button::right), red);
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), white);
    EXPECT_EQ(toolbox->current_tool(), Tool::dropper);
    EXPECT_FALSE(document().is_modified());
    // Outside of the tile there is nothing to pick.
    script().click({300, 100});
    play();
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), white);
    const Point tick{816 + 5 + 8, 32 + 26 * 5 + 4 + (67 + 4) + 51 + 26 + 6};
    script().click(tick).click(cell(5, 6));
    play();
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), red);
    EXPECT_EQ(toolbox->current_tool(), Tool::pen);
}

TEST_F(Tools_Test, right_button_of_the_pen_does_what_its_row_says) {
    drag({{1, 1}});
    execute(Command::save_history_buffer);
    tool_colors->set_color(Mouse_Button::left, red);
    drag({{1, 1}, {3, 1}});
    choose(Tool_Option::right_button_mode, 1);
    drag({{1, 1}, {2, 1}}, Mouse_Button::right);
    EXPECT_EQ(tile_pixel(1, 1), white);
    EXPECT_EQ(tile_pixel(2, 1), black);
    EXPECT_EQ(tile_pixel(3, 1), red);
    choose(Tool_Option::right_button_mode, 2);
    drag({{1, 1}}, Mouse_Button::right);
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), white);
    EXPECT_EQ(tile_pixel(1, 1), white);
}

TEST_F(Tools_Test, fill_pours_the_colour_or_the_brush) {
    execute(Command::flood_fill);
    drag({{3, 3}, {20, 20}});
    EXPECT_EQ(count(white), 24 * 24);
    tool_colors->set_color(Mouse_Button::left, red);
    toolbox->select_brush_size(2);
    choose(Tool_Option::fill_mode, 1);
    drag({{0, 0}});
    // A plus of five pixels in every nine.
    EXPECT_EQ(count(red), 24 * 24 * 5 / 9);
}

TEST_F(Tools_Test, lightness_and_colour_pens_change_what_is_there) {
    document().tileset().current_tile()->fill(Color(100, 100, 100, 77));
    execute(Command::lightness_pen);
    drag({{4, 4}});
    EXPECT_EQ(tile_pixel(4, 4), Color(102, 102, 102, 77));
    execute(Command::colorize_pen);
    tool_colors->set_color(Mouse_Button::left, Color(255, 0, 0));
    drag({{5, 5}});
    EXPECT_EQ(tile_pixel(5, 5), Color(173, 0, 0, 77));
    execute(Command::smudge_brush);
    drag({{5, 5}, {6, 5}});
    EXPECT_EQ(tile_pixel(6, 5), Color(136, 50, 50, 77));
}

TEST_F(Tools_Test, every_stroke_can_be_undone_and_repeats_itself) {
    for (const Tool_Row& tool : tool_table) {
        if (find_stroke(canvas_action_of(tool.command, Shape_Type::outline)) == nullptr ||
            tool.id == Tool::lightness_pen) {
            continue; // the lightness pen goes by the clock
        }
        SCOPED_TRACE(tool.name);
        execute(tool.command);
        const std::vector<Color> before = pixels();
        drag({{6, 6}, {12, 9}, {8, 30}});
        const std::vector<Color> after = pixels();
        if (before == after) {
            continue;
        }
        execute(Command::undo);
        EXPECT_EQ(pixels(), before);
        // With the picture comes the tool that drew it.
        execute(tool.command);
        drag({{6, 6}, {12, 9}, {8, 30}});
        EXPECT_EQ(pixels(), after);
    }
}

} // namespace
} // namespace quadrelle::testing
