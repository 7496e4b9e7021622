#include "app/tool_commands.h"

#include "app/editor_parts.h"
#include "panes/tool_color_panel.h"
#include "panes/toolbox.h"
#include "views/color_editor.h"

namespace quadrelle::tool_commands {

Outcome select(Editor_Parts& editor, Command of_tool) {
    return select_tool(editor, tool_of(of_tool));
}

Outcome select_tool(Editor_Parts& editor, Tool tool) {
    if (tool == toolbox->current_tool()) {
        toolbox->state().is_erasing = false;
        return Outcome::done;
    }
    if (tool != Tool::selection) {
        editor.desk.settle_before_leaving();
    }
    editor.canvas.work_area().end_turn();
    toolbox->select(row_of(tool).command);
    return Outcome::done;
}

Outcome select_filled(Editor_Parts& editor, Tool shape) {
    toolbox->state().shape_type_of(shape) = Shape_Type::filled;
    return select_tool(editor, shape);
}

void select_eraser(Editor_Parts& editor) {
    select_tool(editor, Tool::pen);
    toolbox->state().is_erasing = true;
}

// Some tools show no colours.
Outcome swap_colors(Editor_Parts& editor) {
    tool_colors->swap();
    if (!row_of(toolbox->current_tool()).uses_tool_colors) {
        editor.report(Command::swap_tool_colors, "Left and right button have changed their colors.");
    }
    return Outcome::done;
}

Outcome step_in_palette(Editor_Parts& editor, Point step) {
    if (!row_of(toolbox->current_tool()).uses_tool_colors) {
        editor.panes.hint_lines().report({"Palette", "The tool in use draws in no color."});
        return Outcome::refused;
    }
    tool_colors->set_color(Mouse_Button::left, editor.panes.palette().move_selection(step.x, step.y));
    return Outcome::done;
}

Outcome edit_color(Editor_Parts& /*editor*/) {
    edit_button_color(Mouse_Button::left);
    return Outcome::done;
}

void edit_button_color(Mouse_Button button) {
    const bool is_left = button == Mouse_Button::left;
    const std::optional<Color> edited = quadrelle::edit_color(
        is_left ? "Left button color" : "Right button color", tool_colors->color(button));
    if (edited) {
        tool_colors->set_color(button, *edited);
    }
}

void edit_palette_color(Editor_Parts& editor) {
    const std::optional<Color> edited =
        quadrelle::edit_color("Selected color of the palette", editor.panes.palette().selected_color());
    if (edited) {
        editor.panes.store_color(*edited);
    }
}

} // namespace quadrelle::tool_commands
