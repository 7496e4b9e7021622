#include "app/mouse_press.h"

#include "app/edit_commands.h"
#include "app/editor_parts.h"
#include "app/hover.h"
#include "app/tool_commands.h"
#include "canvas/stroke_loop.h"
#include "panes/tool_color_panel.h"
#include "panes/toolbox.h"
#include "tools/options.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

bool picks_and_returns() {
    return toolbox->current_tool() == Tool::dropper &&
           toolbox->state().options.dropper_return == Dropper_Return::on;
}

void draw_on_canvas(Editor_Parts& editor) {
    const bool returns = picks_and_returns();
    const Tile_Point pressed = editor.canvas.tile_point(editor.pointer.point());
    Stroke_Outcome outcome = Stroke_Outcome::nothing_changed;
    editor.recorder.step([&] {
        const Stroke_Tools tools{toolbox->state(), canvas_settings(*options),
                                 [](const Stroke_Findings& found) { toolbox->take(found); }};
        outcome =
            apply_tool(editor.canvas, tools, editor.pointer, [&editor] { editor.redraw(Present::yes); });
        const Command tool = row_of(toolbox->current_tool()).command;
        if (editor.desk.float_wand_area(pressed)) {
            return Command::paste;
        }
        return outcome == Stroke_Outcome::something_changed ? tool : Command::none;
    });
    if (returns && outcome == Stroke_Outcome::color_picked) {
        tool_commands::select_tool(editor, tool_of(toolbox->previous_command()));
    }
}

// The first of two clicks took the palette's colour for that button already: it has it as it is now.
void edit_palette_color(Editor_Parts& editor, Mouse_Button taken_for) {
    tool_commands::edit_palette_color(editor.panes.palette());
    tool_colors->set_color(taken_for, editor.panes.palette().selected_color());
}

void answer_double_click(Editor_Parts& editor, Double_Click twice) {
    switch (twice) {
    case Double_Click::none: break;
    case Double_Click::paste_copy:
        editor.recorder.step([&] {
            return edit_commands::paste_copy(editor) == Outcome::done ? Command::paste : Command::none;
        });
        break;
    case Double_Click::edit_left_color: tool_commands::edit_button_color(Mouse_Button::left); break;
    case Double_Click::edit_right_color: tool_commands::edit_button_color(Mouse_Button::right); break;
    case Double_Click::edit_palette_color: edit_palette_color(editor, editor.pointer.button); break;
    case Double_Click::edit_selected_color: tool_commands::edit_palette_color(editor.panes.palette()); break;
    }
}

Command press_beside_canvas(Editor_Parts& editor) {
    if (editor.documents.click_tab(editor.pointer.point())) {
        editor.leave_selection();
        return Command::none;
    }
    const Pane_Click click = editor.panes.click(editor.pointer, editor.clicks);
    answer_double_click(editor, click.twice);
    return click.command;
}

} // namespace

Command press_mouse(Editor_Parts& editor) {
    const Mouse_Button button = editor.pointer.button;
    if (editor.is_control_held && button == Mouse_Button::right) {
        editor.canvas.pan(editor.pointer, [&editor] {
            show_hover(editor.canvas, editor.pointer);
            editor.redraw(Present::yes);
        });
        editor.is_control_held = false;
        return Command::none;
    }
    if (button == Mouse_Button::none) {
        return Command::none;
    }
    if (!window_layout::canvas.contains(editor.pointer.point())) {
        return press_beside_canvas(editor);
    }
    if (editor.canvas.tile() != nullptr) {
        draw_on_canvas(editor);
    }
    return Command::none;
}

} // namespace quadrelle
