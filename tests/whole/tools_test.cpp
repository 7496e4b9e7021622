#include "tests/whole/program_test.h"

#include "commands/command_table.h"
#include "panes/icon_bar.h"

namespace quadrelle::testing {
namespace {

class Tools_Test : public Program_Test {};

// Of a shape only its icons set the type.
TEST_F(Tools_Test, icons_and_list_select_through_the_command) {
    // The icons stand below each other from the top of the bar, with gaps between the groups.
    constexpr Point icon{796, 40 + 24 * 7 + 2 * 7 + 24};
    constexpr Point filled_icon{icon.x, icon.y + 24};
    constexpr Point entry{900, 32 + 26 * 7 + 10};
    constexpr Point more{816 + 34, 32 + 26 * 8 + 4 + 33};
    constexpr Canvas_Action outline = Canvas_Action::rectangle_outline;
    constexpr Canvas_Action filled = Canvas_Action::rectangle_filled;
    constexpr Canvas_Action both = Canvas_Action::rectangle_filled_outline;
    for (const auto& [point, action] : {std::pair(filled_icon, filled),
                                        {entry, filled},
                                        {icon, outline},
                                        {entry, outline},
                                        {filled_icon, filled},
                                        {more, both},
                                        {entry, both},
                                        {icon, outline},
                                        {filled_icon, filled}}) {
        play(script().click(point));
        EXPECT_EQ(tools().command, Command::rectangle);
        EXPECT_EQ(tools().canvas_action(), action);
        if (point == entry) {
            execute(Command::free_rotate);
            play(script().click(entry));
            EXPECT_EQ(tools().canvas_action(), action);
        }
    }
    execute(Command::rectangle);
    EXPECT_EQ(tools().canvas_action(), filled);
    // The rectangle's rows cover the entry below it; the entries above can be clicked.
    play(script().click({900, 32 + 26 * 4 + 10}));
    EXPECT_EQ(tools().tool, Tool::dropper);
    play(script().click({796, 40}, Mouse_Button::right));
    EXPECT_EQ(tools().tool, Tool::dropper);
}

TEST_F(Tools_Test, dropper_returns_to_the_tool_before_when_a_pick_ends_it) {
    const Point tick{816 + 5 + 8, 32 + 26 * 5 + 4 + (67 + 4) + 51 + 26 + 6};
    constexpr Point beside{300, 100};
    document().tileset().current_tile()->set_pixel(5, 6, red);
    execute(Command::filled_rectangle);
    play(script().key('d').click(tick).click(beside).drag({beside, {310, 100}}));
    EXPECT_EQ(tools().tool, Tool::dropper);
    play(script().press(cell(5, 6)).quit());
    EXPECT_EQ(tools().tool, Tool::dropper);
    for (const std::vector<Point>& path : {std::vector{beside, cell(5, 6)}, {cell(5, 6), beside}}) {
        tools().colors = {};
        play(script().key('d').drag(path));
        EXPECT_EQ(tools().colors.of(Mouse_Button::left), red);
        EXPECT_EQ(tools().canvas_action(), Canvas_Action::rectangle_filled);
    }
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
    while (Icon_Bar().command_at(icon) != tool) {
        ++icon.y;
    }
    return icon;
}

Point arrow_of(const Tool_Case& test) {
    const int row_top = 32 + 26 * (test.list_entry + 1) + 4 + 51 * test.rows_above;
    return {816 + 34, row_top + 33};
}

TEST_F(Tools_Test, draw_as_their_option_rows_say) {
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
    tools().colors.set(left, red);
    tools().colors.set(right, pure_blue);
    for (const Tool_Case& test : cases) {
        SCOPED_TRACE(menu_text(test.tool) + ", clicks " + std::to_string(test.clicks));
        Tile& tile = *document().tileset().current_tile();
        tile.fill(grey);
        tile.set_pixel(5, 8, red);
        const std::vector<Color> before(tile.pixels().begin(), tile.pixels().end());
        const Command_Row& row = row_of(test.tool);
        script().key('d');
        row.key == key::none ? script().click(icon_of(test.tool)) : script().key(row.key, row.modifier);
        script().key(test.brush_size);
        for (int i = 0; i < test.clicks; ++i) {
            script().click(arrow_of(test));
        }
        const Point from = cell(test.from.x, test.from.y);
        const Point to = cell(test.to.x, test.to.y);
        // No motion on the spot: the lightness pen may be due again.
        script().press(from, test.button);
        to == from ? script() : script().motion(to);
        play(script().release(to, test.button));
        int changed = 0;
        for (int i = 0; i < tile.pixel_count(); ++i) {
            changed += tile.get_pixel_at(i) == before[static_cast<std::size_t>(i)] ? 0 : 1;
        }
        EXPECT_EQ(changed, test.changed);
        EXPECT_EQ(tile_pixel(test.sample.x, test.sample.y), test.sampled);
        if (test.sampled.a == 255) {
            EXPECT_EQ(pixel_at(cell(test.sample.x, test.sample.y)), test.sampled);
        }
    }
}

} // namespace
} // namespace quadrelle::testing
