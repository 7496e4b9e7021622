#include "app/tool_commands.h"

#include "app/editor_parts.h"
#include "app/tile_commands.h"
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

Outcome edit_color(Editor_Parts& editor) {
    const Color_Choice choice = quadrelle::edit_color(tool_colors->color(Mouse_Button::left));
    if (choice.color) {
        tool_colors->set_color(Mouse_Button::left, *choice.color);
    }
    if (choice.request == Color_Request::adjust_tile) {
        tile_commands::adjust_hsv(editor);
    }
    return Outcome::done;
}

} // namespace quadrelle::tool_commands
