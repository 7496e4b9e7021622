// What holds for every tool that draws, whatever its brush, its button and the tile.

#include "canvas/stroke_table.h"
#include "commands/command_table.h"
#include "panes/icon_bar.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"
#include "tests/support/tile_art.h"
#include "tests/whole/program_test.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

constexpr Color white(255, 255, 255);
constexpr Color red(200, 30, 40);
constexpr Color blue(20, 60, 210, 128);

using Tile_Picture = std::vector<Color>;

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

Tile_Picture picture_of(const Tile& tile) {
    return {tile.pixels().begin(), tile.pixels().end()};
}

class Every_Tool_Test : public Program_Test {
protected:
    static Tile_Picture picture() { return picture_of(*document().tileset().current_tile()); }

    // The middle of a pixel of the tile on view.
    static Point at(Tile_Point pixel) {
        const Canvas_View& canvas = editor->canvas();
        const int size = canvas.pixel_size();
        return {canvas.origin().x + size * pixel.x + size / 2, canvas.origin().y + size * pixel.y + size / 2};
    }
    static void choose(const Stroke_Case& stroke) {
        editor->execute(stroke.command);
        toolbox->options().rectangle_type = stroke.type;
        toolbox->options().ellipse_type = stroke.type;
        tool_colors->set_color(Mouse_Button::left, red);
        tool_colors->set_color(Mouse_Button::right, blue);
    }
    void draw(const Stroke_Case& stroke, const std::vector<Tile_Point>& path, Mouse_Button button) {
        choose(stroke);
        std::vector<Point> points;
        for (const Tile_Point pixel : path) {
            points.push_back(at(pixel));
        }
        script().drag(points, button);
        play();
    }
    // A set of three tiles with the second one on view; that state is in the history.
    static void show_middle_tile(Size size) {
        editor->documents().new_document(size);
        editor->execute(Command::add_new_tile);
        editor->execute(Command::add_new_tile);
        for (int i = 0; i < 3; ++i) {
            make_colorful(document().tileset().tile_at(i), i);
        }
        editor->execute(Command::previous_tile);
    }

    // Drawn, taken back, done again, taken back and drawn once more. True when something was drawn at all.
    bool repeat(const Stroke_Case& stroke, const std::vector<Tile_Point>& path, Mouse_Button button) {
        const Tile_Picture before = picture();
        draw(stroke, path, button);
        const Tile_Picture after = picture();
        if (before == after) {
            return false;
        }
        editor->execute(Command::undo);
        EXPECT_EQ(picture(), before);
        editor->execute(Command::redo);
        EXPECT_EQ(picture(), after);
        editor->execute(Command::undo);
        // The lightness pen goes by the clock: it may have stood somewhere for longer.
        if (stroke.action != Canvas_Action::lightness_pen) {
            draw(stroke, path, button);
            EXPECT_EQ(picture(), after);
            editor->execute(Command::undo);
        }
        EXPECT_EQ(picture(), before);
        return true;
    }
};

// From outside through the tile, and from its middle out of it.
TEST_F(Every_Tool_Test, strokes_stay_in_the_tile_and_can_be_taken_back_and_repeated) {
    std::set<Canvas_Action> drawn;
    for (const Size tile : {Size{1, 1}, Size{24, 24}, Size{13, 40}}) {
        show_middle_tile(tile);
        const Tile_Picture neighbours[] = {picture_of(document().tileset().tile_at(0)),
                                           picture_of(document().tileset().tile_at(2))};
        const Tile_Point middle{tile.width / 2, tile.height / 2};
        const std::vector<Tile_Point> paths[] = {{{-3, -2}, middle, {tile.width + 2, middle.y}},
                                                 {middle, {0, 0}, {tile.width + 2, tile.height + 1}}};
        for (const Stroke_Case& stroke : stroke_cases()) {
            for (const int size_index : {0, 5}) {
                for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
                    toolbox->select_brush_size(size_index);
                    for (const std::vector<Tile_Point>& path : paths) {
                        SCOPED_TRACE(menu_text(stroke.command) + " on " + std::to_string(tile.width) +
                                     ", size " + std::to_string(size_index + 1));
                        if (repeat(stroke, path, button)) {
                            drawn.insert(stroke.action);
                        }
                    }
                }
            }
        }
        EXPECT_EQ(picture_of(document().tileset().tile_at(0)), neighbours[0]);
        EXPECT_EQ(picture_of(document().tileset().tile_at(2)), neighbours[1]);
    }
    // All but the dropper.
    EXPECT_EQ(drawn.size(), stroke_cases().size() - 1);
    EXPECT_FALSE(drawn.contains(Canvas_Action::dropper));
}

TEST_F(Every_Tool_Test, segments_stay_in_the_selection_and_are_the_same_twice) {
    const Tile mask = make_tile({"#######", "##   ##", "# # # #", "##   ##", " ##### "});
    const Tile before = make_tile({"abcabcb", "aacabbb", "cbcbaab", "ccaaadb", "c aaadd"});
    Tile history(7, 5);
    make_colorful(history, 9);
    Work_Area work;
    for (const Stroke_Case& stroke : stroke_cases()) {
        const Stroke_Row* const row = find_stroke(stroke.action);
        for (int choice = 0; choice < 2 * 2 * 3; ++choice) {
            SCOPED_TRACE(menu_text(stroke.command) + ", choice " + std::to_string(choice));
            toolbox->select_brush_size(choice % 2 * 5);
            toolbox->options().right_button_mode = static_cast<Right_Button_Mode>(choice / 4);
            const Mouse_Button button = choice / 2 % 2 == 0 ? Mouse_Button::left : Mouse_Button::right;
            const bool picks =
                row->action == Canvas_Action::dropper ||
                (choice / 4 == 2 && button == Mouse_Button::right &&
                 (row->action == Canvas_Action::pen || row->action == Canvas_Action::colorize_pen));
            Tile tiles[] = {before, before};
            for (Tile& tile : tiles) {
                tool_colors->set_color(Mouse_Button::left, red);
                tool_colors->set_color(Mouse_Button::right, blue);
                Drawing_Target target(tile, mask);
                const Stroke_Findings found = row->draw_segment(
                    target,
                    {toolbox->state(), work, &history, row->action, button, {-2, 0}, {6, 2}, {}, {6, 2}, {}});
                EXPECT_EQ(found.picked.has_value(), picks);
            }
            EXPECT_EQ(picture_of(tiles[0]), picture_of(tiles[1]));
            EXPECT_EQ(picture_of(tiles[0]) == picture_of(before), picks);
            for (int pixel = 0; pixel < before.pixel_count(); ++pixel) {
                if (!mask.is_white_at(pixel % 7, pixel / 7)) {
                    EXPECT_EQ(tiles[0].get_pixel_at(pixel), before.get_pixel_at(pixel)) << pixel;
                }
            }
        }
    }
}

// A large brush lies around the pointer; what has no brush acts under it all the same.
TEST_F(Every_Tool_Test, without_a_brush_they_act_on_the_pixel_under_the_pointer) {
    show_middle_tile({24, 24});
    const Tile_Picture before = picture();
    constexpr Tile_Point target{10, 11};
    constexpr int index = 11 * 24 + 10;
    const Point corner = editor->canvas().origin();
    for (const Point offset : {Point{100, 110}, Point{109, 119}}) {
        const Point pointer{corner.x + offset.x, corner.y + offset.y};
        for (const Command command : {Command::line, Command::rectangle, Command::filled_rectangle,
                                      Command::circle, Command::flood_fill}) {
            SCOPED_TRACE(menu_text(command));
            editor->execute(Command::pen);
            toolbox->select_brush_size(5);
            tool_colors->set_color(Mouse_Button::left, red);
            editor->execute(command);
            script().click(pointer);
            play();
            Tile_Picture expected = before;
            expected[index] = red;
            EXPECT_EQ(picture(), expected);
            editor->execute(Command::undo);
        }
        editor->execute(Command::dropper);
        script().click(pointer, Mouse_Button::right);
        play();
        EXPECT_EQ(tool_colors->color(Mouse_Button::right), before[index]);
        editor->execute(Command::pen);
        toolbox->options().right_button_mode = Right_Button_Mode::dropper;
        script().click(pointer, Mouse_Button::right);
        play();
        EXPECT_EQ(tool_colors->color(Mouse_Button::left), before[index]);
        EXPECT_EQ(picture(), before);
    }
    execute(Command::line);
    script().drag({at(target), at({15, 11})});
    play();
    EXPECT_EQ(tile_pixel(15, 11), tool_colors->color(Mouse_Button::left));
    EXPECT_EQ(tile_pixel(16, 11), before[index + 6]);
}

// As a user does it: the tool by its key or else its icon, the size of the brush by a digit, the option by
// clicks on the arrow of its row, then a stroke.
struct Tool_Case {
    Command tool;
    int list_entry;
    int rows_above; // between the tool's entry in the list and the option
    int clicks;
    Keycode brush_size;
    Mouse_Button button;
    Tile_Point from;
    Tile_Point to;
    int changed;
    Tile_Point sample;
    Color sampled;
};

Point icon_of(Command tool) {
    Point icon{796, 32};
    while (Icon_Bar(32).command_at(icon) != tool) {
        ++icon.y;
    }
    return icon;
}

Point arrow_of(const Tool_Case& test) {
    const int row_top = 32 + 26 * (test.list_entry + 1) + 4 + 51 * test.rows_above;
    return {816 + 34, row_top + 33};
}

TEST_F(Every_Tool_Test, draw_as_their_option_rows_say) {
    constexpr Mouse_Button left = Mouse_Button::left;
    constexpr Mouse_Button right = Mouse_Button::right;
    constexpr Color grey(100, 100, 100, 77);
    constexpr Color pure_blue(0, 0, 255);
    // clang-format off
    const Tool_Case cases[] = {
        {Command::pen,           0, 2, 0, '3', left,  {8, 8}, {8, 8}, 5,   {9, 8},  red},
        {Command::pen,           0, 2, 2, '3', left,  {8, 8}, {8, 8}, 5,   {7, 6},  red},
        {Command::lightness_pen, 1, 2, 1, '3', left,  {8, 8}, {8, 8}, 5,   {8, 7},  {98, 98, 98, 77}},
        {Command::colorize_pen,  2, 3, 1, '2', right, {8, 8}, {8, 8}, 4,   {9, 9},  {0, 0, 100, 77}},
        {Command::smudge_brush,  3, 0, 0, '1', left,  {5, 8}, {8, 8}, 3,   {6, 8},  {150, 65, 70, 77}},
        {Command::flood_fill,    5, 0, 1, '3', left,  {8, 8}, {8, 8}, 320, {9, 8},  red},
        {Command::line,          6, 0, 0, '6', right, {9, 9}, {4, 4}, 6,   {4, 4},  pure_blue},
        {Command::rectangle,     7, 0, 2, '6', left,  {9, 9}, {5, 6}, 19,  {7, 7},  pure_blue},
        {Command::circle,        8, 0, 1, '6', right, {7, 7}, {9, 8}, 11,  {7, 7},  pure_blue},
        {Command::stamp_brush,  13, 0, 2, '3', left,  {8, 8}, {10, 8}, 10,  {10, 6}, red},
    };
    // clang-format on
    tool_colors->set_color(left, red);
    tool_colors->set_color(right, pure_blue);
    for (const Tool_Case& test : cases) {
        SCOPED_TRACE(menu_text(test.tool) + ", clicks " + std::to_string(test.clicks));
        Tile& tile = *document().tileset().current_tile();
        tile.fill(grey);
        tile.set_pixel(5, 8, red);
        const Tile_Picture before = picture();
        const Command_Row& row = row_of(test.tool);
        script().key('d');
        row.key == key::none ? script().click(icon_of(test.tool)) : script().key(row.key, row.modifier);
        script().key(test.brush_size);
        for (int i = 0; i < test.clicks; ++i) {
            script().click(arrow_of(test));
        }
        // No motion on the spot: the lightness pen may be due again.
        script().press(at(test.from), test.button);
        test.to == test.from ? script() : script().motion(at(test.to));
        script().release(at(test.to), test.button);
        play();
        int changed = 0;
        for (int i = 0; i < tile.pixel_count(); ++i) {
            changed += tile.get_pixel_at(i) == before[static_cast<std::size_t>(i)] ? 0 : 1;
        }
        EXPECT_EQ(changed, test.changed);
        EXPECT_EQ(tile_pixel(test.sample.x, test.sample.y), test.sampled);
        if (test.sampled.a == 255) {
            EXPECT_EQ(pixel_at(at(test.sample)), test.sampled);
        }
    }
}

} // namespace
} // namespace quadrelle::testing
