// What holds for every tool that draws, whatever its brush, its button and the tile.

#include "canvas/stroke_table.h"
#include "commands/command_table.h"
#include "tests/support/drawing_board.h"
#include "tests/support/tiles.h"

#include <set>

namespace quadrelle::testing {
namespace {

constexpr Color blue(20, 60, 210, 128);

struct Stroke_Case {
    Command command;
    Shape_Type type;
    Canvas_Action action;
};

// What selects, or moves the whole tile, is another matter.
bool is_painting(const Tool_Row& tool) {
    const bool moves = tool.id == Tool::scroll || tool.id == Tool::rotate;
    return row_of(tool.command).category != Command_Category::selection && !moves;
}

// The tools that draw, shapes in all of their types.
std::vector<Stroke_Case> stroke_cases() {
    std::vector<Stroke_Case> cases;
    for (const Tool_Row& tool : tool_table) {
        for (const Shape_Type type : {Shape_Type::outline, Shape_Type::filled, Shape_Type::filled_outline}) {
            const Canvas_Action action = canvas_action_of(tool.command, type);
            if (find_stroke(action) != nullptr && is_painting(tool) &&
                std::ranges::find(cases, action, &Stroke_Case::action) == cases.end()) {
                cases.push_back({tool.command, type, action});
            }
        }
    }
    return cases;
}

// No two pixels alike, and not all of them opaque.
void make_colorful(Tile& tile, int variant) {
    for (int i = 0; i < tile.pixel_count(); ++i) {
        tile.set_pixel_at(i,
                          {40 + i % 150, 50 + i / 150 * 20 + variant, 160 - i % 130, i % 3 == 0 ? 90 : 255});
    }
}

void choose(Tool_State& tools, const Stroke_Case& stroke, int brush_size) {
    tools.select(stroke.command);
    tools.options.rectangle_type = stroke.type;
    tools.options.ellipse_type = stroke.type;
    tools.colors.left = red;
    tools.colors.right = blue;
    tools.chosen_brush.select_size(brush_size);
}

// From outside through the tile, and from its middle out of it.
TEST(Every_Tool, strokes_tell_whether_they_drew_and_are_the_same_twice) {
    std::set<Canvas_Action> drawn;
    for (const Size size : {Size{1, 1}, Size{24, 24}, Size{13, 40}}) {
        Tile before(size.width, size.height);
        make_colorful(before, 1);
        const Tile_Point middle{size.width / 2, size.height / 2};
        const std::vector<Tile_Point> paths[] = {{{-3, -2}, middle, {size.width + 2, middle.y}},
                                                 {middle, {0, 0}, {size.width + 2, size.height + 1}}};
        for (const Stroke_Case& stroke : stroke_cases()) {
            for (int choice = 0; choice < 2 * 2 * 2; ++choice) {
                SCOPED_TRACE(menu_text(stroke.command) + " on " + std::to_string(size.width) + ", choice " +
                             std::to_string(choice));
                const Mouse_Button button = choice % 2 == 0 ? Mouse_Button::left : Mouse_Button::right;
                Tile_Picture pictures[2];
                for (Tile_Picture& picture : pictures) {
                    Drawing_Board board(before);
                    choose(board.tools, stroke, choice / 2 % 2 * 5);
                    const Stroke_Outcome outcome = board.drag(paths[choice / 4], button);
                    picture = picture_of(board.tile);
                    EXPECT_EQ(outcome == Stroke_Outcome::something_changed, picture != picture_of(before));
                }
                EXPECT_EQ(pictures[0], pictures[1]);
                if (pictures[0] != picture_of(before)) {
                    drawn.insert(stroke.action);
                }
            }
        }
    }
    // All but the dropper.
    EXPECT_EQ(drawn.size(), stroke_cases().size() - 1);
    EXPECT_FALSE(drawn.contains(Canvas_Action::dropper));
}

TEST(Every_Tool, segments_stay_in_the_selection) {
    const Tile mask = make_tile({"#######", "##   ##", "# # # #", "##   ##", " ##### "});
    const Tile before = make_tile({"abcabcb", "aacabbb", "cbcbaab", "ccaaadb", "c aaadd"});
    Tile history(7, 5);
    make_colorful(history, 9);
    Work_Area work;
    for (const Stroke_Case& stroke : stroke_cases()) {
        const Stroke_Row* const row = find_stroke(stroke.action);
        for (int choice = 0; choice < 2 * 2 * 3; ++choice) {
            SCOPED_TRACE(menu_text(stroke.command) + ", choice " + std::to_string(choice));
            Tool_State tools;
            choose(tools, stroke, choice % 2 * 5);
            tools.options.right_button_mode = static_cast<Right_Button_Mode>(choice / 4);
            const Mouse_Button button = choice / 2 % 2 == 0 ? Mouse_Button::left : Mouse_Button::right;
            const bool picks =
                row->action == Canvas_Action::dropper ||
                (tools.options.right_button_mode == Right_Button_Mode::dropper &&
                 button == Mouse_Button::right &&
                 (row->action == Canvas_Action::pen || row->action == Canvas_Action::colorize_pen));
            Tile tile = before;
            Drawing_Target target(tile, mask);
            const Stroke_Findings found = row->draw_segment(
                target, {tools, work, &history, row->action, button, {-2, 0}, {6, 2}, {}, {6, 2}, {}});
            EXPECT_EQ(found.picked.has_value(), picks);
            EXPECT_EQ(picture_of(tile) == picture_of(before), picks);
            for (int pixel = 0; pixel < before.pixel_count(); ++pixel) {
                if (!mask.is_white_at(pixel % 7, pixel / 7)) {
                    EXPECT_EQ(tile.get_pixel_at(pixel), before.get_pixel_at(pixel)) << pixel;
                }
            }
        }
    }
}

// A large brush lies around the pointer; what has no brush acts under it all the same.
TEST(Every_Tool, without_a_brush_they_act_on_the_pixel_under_the_pointer) {
    Tile before(24, 24);
    make_colorful(before, 0);
    constexpr int index = 11 * 24 + 10;
    for (const Point offset : {Point{100, 110}, Point{109, 119}}) {
        for (const Stroke_Case& stroke : stroke_cases()) {
            SCOPED_TRACE(menu_text(stroke.command));
            Drawing_Board board(before);
            const Point corner = board.canvas.origin();
            choose(board.tools, stroke, 5);
            const bool has_brush = board.tools.uses_brush();
            board.tools.options.right_button_mode = Right_Button_Mode::dropper;
            board.press({corner.x + offset.x, corner.y + offset.y},
                        has_brush ? Mouse_Button::right : Mouse_Button::left);
            if (board.release() == Stroke_Outcome::color_picked) {
                EXPECT_EQ(board.tools.colors.left, before.get_pixel_at(index));
                EXPECT_EQ(picture_of(board.tile), picture_of(before));
            } else if (!has_brush) {
                Tile_Picture expected = picture_of(before);
                expected[index] = red;
                EXPECT_EQ(picture_of(board.tile), expected);
            }
        }
    }
}

// With something selected, or with something that floats.
TEST(Every_Tool, what_is_taken_back_leaves_everything_as_it_was) {
    Tile before(24, 24);
    make_colorful(before, 0);
    for (const Tool_Row& tool : tool_table) {
        for (const bool floats : {false, true}) {
            SCOPED_TRACE(tool.name);
            Drawing_Board board(before);
            Work_Area& work = board.canvas.work_area();
            work.select(selected_rectangle({24, 24}, {5, 5}, {15, 15}), Selection_Change::add);
            if (floats) {
                work.lift_selection(board.tile);
            }
            board.tools.select(tool.command);
            const Tile_Picture picture = picture_of(board.tile);
            const Work_State state = work.state();
            const Tool_Colors colors = board.tools.colors;
            board.press(board.at({10, 10}));
            board.move(board.at({12, 14}));
            board.take_back();
            board.move(board.at({16, 16}));
            board.hold();
            board.pause(50);
            EXPECT_EQ(board.release(), Stroke_Outcome::taken_back);
            EXPECT_EQ(picture_of(board.tile), picture);
            EXPECT_TRUE(work == state);
            EXPECT_FALSE(work.candidate());
            EXPECT_EQ(board.tools.colors.left, colors.left);
        }
    }
}

} // namespace
} // namespace quadrelle::testing
