#include "panes/toolbox.h"

#include "color/palette_store.h"
#include "panes/tool_colors.h"
#include "tests/whole/program_test.h"
#include "ui/dialog_container.h"
#include "ui/options.h"

namespace quadrelle::testing {
namespace {

class Toolbox_Test : public Program_Test {};

TEST_F(Toolbox_Test, keeps_the_tool_before_the_current_one) {
    EXPECT_EQ(toolbox->current_tool(), Tool::pen);
    toolbox->select(Command::line);
    EXPECT_EQ(toolbox->current_tool(), Tool::line);
    EXPECT_EQ(toolbox->canvas_action(), Canvas_Action::line);
    toolbox->select(Command::dropper);
    EXPECT_EQ(toolbox->current_command(), Command::dropper);
    EXPECT_EQ(toolbox->previous_command(), Command::line);
}

TEST_F(Toolbox_Test, keys_leave_a_tool_that_is_chosen_already_as_it_is) {
    toolbox->select(Command::line);
    script().key('p').key('p');
    play();
    EXPECT_EQ(toolbox->current_command(), Command::pen);
    EXPECT_EQ(toolbox->previous_command(), Command::line);
}

TEST_F(Toolbox_Test, every_tool_is_selected_by_its_command) {
    for (const Tool_Row& row : tool_table) {
        toolbox->select(row.command);
        EXPECT_EQ(toolbox->current_tool(), row.id) << row.name;
        editor->redraw(Present::yes);
    }
}

// From the brush's corner to the pointer, half the brush without its first pixel.
TEST_F(Toolbox_Test, pointer_offset_centres_a_precise_brush) {
    struct Case {
        int size_index;
        int pixel_size;
        int offset;
    };
    for (const Case& test : {Case{0, 10, 0}, {1, 10, 5}, {2, 10, 10}, {1, 3, 1}, {5, 21, 52}}) {
        toolbox->select_brush_size(test.size_index);
        EXPECT_EQ(toolbox->pointer_offset(test.pixel_size), (Point{test.offset, test.offset}));
    }
    constexpr int precise_brush_id = 31;
    options->dialog().item(precise_brush_id)->notify(Dialog_Event_Kind::increase);
    options->load();
    ASSERT_EQ(options->value(Option::precise_brush), 0);
    EXPECT_EQ(toolbox->pointer_offset(10), Point{});
}

TEST_F(Toolbox_Test, clicks_choose_colours_of_either_button) {
    const Palette_Store& store = *palette_store;
    // The third entry of the palette; its pane stands at (31, 427).
    const Point entry{31 + 5 + 2 * 24 + 12, 427 + 21 + 5 + 19 + 10};
    script().click(entry);
    play();
    EXPECT_EQ(tool_colors->color(Mouse_Button::left), store.color(0, 2));
    EXPECT_EQ(tool_colors->color(Mouse_Button::right), Color(0, 0, 0));
    script().click(entry, Mouse_Button::right).key('x').motion({1, 1});
    play();
    EXPECT_EQ(tool_colors->color(Mouse_Button::right), store.color(0, 2));
}

TEST_F(Toolbox_Test, a_click_makes_the_other_side_the_active_one) {
    // The panels stand to the right of the tool list, each 71 pixels high with the gap.
    const Point left{816 + 210 + 20, 32 + 40};
    const Point right{left.x, left.y + 71};
    EXPECT_FALSE(
        toolbox->click({static_cast<float>(left.x), static_cast<float>(left.y), Mouse_Button::left}, [] {}));
    script().click(right);
    play();
    EXPECT_EQ(tool_colors->active_side(), Mouse_Button::right);
    EXPECT_EQ(tool_colors->current_color(), Color(0, 0, 0));
    script().click(left);
    play();
    EXPECT_EQ(tool_colors->active_side(), Mouse_Button::left);
}

} // namespace
} // namespace quadrelle::testing
