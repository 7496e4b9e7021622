#include "commands/command_table.h"
#include "selection/free_rotation.h"
#include "tests/support/drawing_board.h"
#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

class Stroke_On_Board : public ::testing::Test {
protected:
    [[nodiscard]] Color pixel(int x, int y) const { return board.tile.get_pixel(x, y); }

    Drawing_Board board{Tile(24, 24)};
};

TEST_F(Stroke_On_Board, right_button_of_the_pen_does_what_its_option_says) {
    board.drag({{1, 1}});
    board.canvas.save_history();
    board.tools.colors.left = red;
    board.drag({{1, 1}, {3, 1}});
    board.tools.options.right_button_mode = Right_Button_Mode::history;
    board.drag({{1, 1}, {2, 1}}, Mouse_Button::right);
    EXPECT_EQ(pixel(1, 1), white);
    EXPECT_EQ(pixel(2, 1), black);
    EXPECT_EQ(pixel(3, 1), red);
    board.tools.options.right_button_mode = Right_Button_Mode::dropper;
    board.drag({{1, 1}}, Mouse_Button::right);
    EXPECT_EQ(board.tools.colors.left, white);
    EXPECT_EQ(pixel(1, 1), white);
}

TEST_F(Stroke_On_Board, dropper_picks_for_its_button) {
    board.tile.set_pixel(5, 6, red);
    board.tools.select(Command::dropper);
    EXPECT_EQ(board.drag({{5, 6}}, Mouse_Button::right), Stroke_Outcome::color_picked);
    EXPECT_EQ(board.tools.colors.right, red);
    EXPECT_EQ(board.tools.colors.left, white);
}

TEST_F(Stroke_On_Board, figures_follow_and_shift_turns_in_steps) {
    board.tools.select(Command::free_rotate);
    board.drag({{20, 12}, {20, 15}});
    EXPECT_EQ(board.tools.figures.location, (Tile_Point{20, 15}));
    EXPECT_EQ(board.tools.figures.degrees, 19);
    board.is_shift_held = true;
    board.drag({{20, 12}, {20, 15}});
    EXPECT_EQ(board.tools.figures.degrees, 45);
    for (const Tool_Row& tool : tool_table) {
        board.tools.select(tool.command);
        board.drag({{20, 12}, {7, 15}});
        EXPECT_TRUE(!tool.shows_location || board.tools.figures.location == Tile_Point({7, 15})) << tool.name;
    }
}

// Of the corners, which turn out of the tile, nothing is lost.
TEST_F(Stroke_On_Board, turns_the_tile_from_what_it_was_at_first) {
    random_tile({24, 24}).copy_to(board.tile);
    const Tile_Picture before = picture_of(board.tile);
    const Tile quarter = turned(board.tile, 90, {24, 24});
    board.tools.select(Command::free_rotate);
    board.is_shift_held = true;
    for (int degrees = 15; degrees <= 360; degrees += 15) {
        board.drag({{20, 12}, {20, 15}});
        EXPECT_EQ(picture_of(board.tile) == picture_of(quarter), degrees == 90) << degrees;
        EXPECT_EQ(picture_of(board.tile) == before, degrees == 360) << degrees;
        EXPECT_EQ(board.tools.figures.degrees, degrees % 360);
    }
    // Something else changes it.
    board.drag({{20, 12}, {20, 15}});
    board.tile.set_pixel(11, 11, red);
    board.drag({{20, 12}, {20, 15}});
    EXPECT_EQ(board.tools.figures.degrees, 15);
}

struct Shape_Case {
    Command tool;
    Tile_Point to; // from 10, 10
    bool is_shift_held;
    bool is_control_held;
    Rectangle drawn; // or selected
};

// Held from the press on, or only just before the release.
TEST_F(Stroke_On_Board, shift_and_control_shape_what_is_dragged) {
    const std::vector<Shape_Case> cases{
        {Command::line, {17, 12}, true, false, {10, 10, 8, 1}},
        {Command::line, {9, 3}, true, false, {10, 3, 1, 8}},
        {Command::line, {15, 13}, true, false, {10, 10, 5, 5}},
        {Command::line, {6, 13}, true, false, {6, 10, 5, 5}},
        {Command::line, {13, 11}, false, true, {7, 9, 7, 3}},
        {Command::rectangle, {7, 12}, true, false, {7, 10, 4, 4}},
        {Command::rectangle, {10, 8}, true, false, {10, 8, 3, 3}},
        {Command::rectangle, {12, 13}, false, true, {8, 7, 5, 7}},
        {Command::rectangle, {12, 13}, true, true, {7, 7, 7, 7}},
        {Command::circle, {13, 11}, true, false, {7, 7, 7, 7}},
        {Command::circle, {13, 11}, false, true, {7, 9, 7, 3}},
        {Command::rectangle_selector, {14, 12}, true, false, {11, 11, 4, 4}},
        {Command::rectangle_selector, {14, 12}, false, true, {7, 9, 8, 4}},
        {Command::circle_selector, {13, 11}, true, false, {7, 7, 7, 7}},
        {Command::scroll, {13, 11}, true, true, {13, 11, 1, 1}},
    };
    for (const Shape_Case& test : cases) {
        for (const bool is_held_at_once : {true, false}) {
            SCOPED_TRACE(std::string(row_of(test.tool).name) + " to " + std::to_string(test.to.x));
            const bool scrolls = test.tool == Command::scroll;
            board.tile.fill(black);
            board.tile.set_pixel(10, 10, scrolls ? white : black);
            board.canvas.work_area().deselect();
            board.tools.select(test.tool);
            board.is_shift_held = test.is_shift_held && is_held_at_once;
            board.is_control_held = test.is_control_held && is_held_at_once;
            board.press(board.at({10, 10}));
            board.move(board.at({20, 3}));
            board.move(board.at(test.to));
            board.is_shift_held = test.is_shift_held;
            board.is_control_held = test.is_control_held;
            board.hold();
            board.release();
            const bool selects = row_of(test.tool).category == Command_Category::selection;
            EXPECT_EQ(selects ? board.canvas.work_area().selection().bounds() : board.tile.white_bounds(),
                      test.drawn);
        }
    }
}

TEST_F(Stroke_On_Board, shift_joins_a_stroke_to_the_last_one_on_the_tile) {
    board.is_shift_held = true;
    board.drag({{2, 2}});
    board.drag({{8, 2}, {8, 4}});
    EXPECT_EQ(board.tile.white_bounds(), (Rectangle{2, 2, 7, 3}));
    // From the middle of the brush, whatever its size.
    board.tools.chosen_brush.select_size(2);
    board.drag({{12, 4}});
    EXPECT_EQ(board.tile.white_bounds(), (Rectangle{2, 2, 12, 4}));
    EXPECT_EQ(pixel(7, 3), black);
    EXPECT_EQ(pixel(9, 5), white);
    Tile other(24, 24);
    board.canvas.set_tile(&other);
    board.drag({{20, 20}});
    EXPECT_EQ(other.white_bounds(), (Rectangle{19, 19, 3, 3}));
}

// Grey, on which the lightness pen of one pixel draws; how often it touched each pixel of a row or column.
class Lightness_Stroke : public Stroke_On_Board {
protected:
    Lightness_Stroke() {
        board.tile.fill(Color(100, 100, 100));
        board.tools.select(Command::lightness_pen);
        board.tools.options.speed = Lightness_Speed::extremely_slow;
    }
    [[nodiscard]] int touches(int x, int y) const { return (pixel(x, y).r - 100) / 2; }
    [[nodiscard]] std::string touches_of_row(int y) const {
        std::string row;
        for (int x = 0; x < board.tile.width(); ++x) {
            row += static_cast<char>('0' + touches(x, y));
        }
        return row;
    }
};

// Every 15 milliseconds: more than 14 must have gone by.
TEST_F(Lightness_Stroke, goes_on_while_its_button_is_held) {
    board.press(board.at({4, 4}));
    EXPECT_EQ(touches(4, 4), 1);
    board.pause(14);
    EXPECT_EQ(touches(4, 4), 1);
    board.pause(31);
    EXPECT_EQ(touches(4, 4), 4);
    board.release();
    EXPECT_EQ(touches(4, 4), 4);
}

// Several motions within one interval; the step comes while the button is held or at its release.
TEST_F(Lightness_Stroke, touches_a_fast_path_once_and_skips_nothing) {
    for (const int pause : {0, 14, 15, 30}) {
        board.tile.fill(Color(100, 100, 100));
        board.tools.last_lightness_step = -1000;
        board.press(board.at({2, 2}));
        for (const Tile_Point pixel : {Tile_Point{5, 2}, {9, 2}, {9, 7}}) {
            board.move(board.at(pixel));
        }
        board.pause(pause);
        board.release();
        EXPECT_EQ(touches_of_row(2), "001111111100000000000000");
        for (int y = 3; y < 7; ++y) {
            EXPECT_EQ(touches_of_row(y), "000000000100000000000000");
        }
        EXPECT_EQ(touches(9, 7), pause < 30 ? 1 : 2);
    }
}

TEST_F(Lightness_Stroke, does_not_touch_again_what_it_joins) {
    board.drag({{2, 3}});
    board.is_shift_held = true;
    board.drag({{6, 3}});
    EXPECT_EQ(touches_of_row(3), "001111100000000000000000");
}

TEST_F(Lightness_Stroke, quick_strokes_lose_no_pixel) {
    for (int x = 1; x < 20; x += 3) {
        board.drag({{x, 3}});
    }
    EXPECT_EQ(touches_of_row(3), "010010010010010010010000");
}

} // namespace
} // namespace quadrelle::testing
