#include "app/mouse_press.h"

#include "app/edit_commands.h"
#include "app/editor_parts.h"
#include "app/held_keys.h"
#include "app/hover.h"
#include "app/palette_menu.h"
#include "app/tool_commands.h"
#include "canvas/stroke_loop.h"
#include "panes/tool_color_panel.h"
#include "panes/toolbox.h"
#include "screen/events.h"
#include "tools/options.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

bool picks_and_returns() {
    return toolbox->current_tool() == Tool::dropper &&
           toolbox->state().options.dropper_return == Dropper_Return::on;
}

Stroke_Outcome run(Editor_Parts& editor, const Stroke_Row& stroke) {
    const Stroke_Tools tools{toolbox->state(), canvas_settings(*options),
                             [](const Stroke_Findings& found) { toolbox->take(found); }};
    return run_stroke(editor.canvas, stroke, tools, editor.pointer,
                      [&editor] { editor.redraw(Present::yes); });
}

// In the hands of the tool for what floats; where nothing came to float, the tool before is back.
Stroke_Outcome move_copy(Editor_Parts& editor) {
    Tool_State& tools = toolbox->state();
    const Command command = tools.command;
    const Command previous = tools.previous_command;
    if (command != Command::work_selection) {
        toolbox->select(Command::work_selection);
    }
    const Stroke_Outcome outcome = run(editor, copy_stroke());
    if (outcome != Stroke_Outcome::something_changed && command != Command::work_selection) {
        toolbox->select(command);
        tools.previous_command = previous;
    }
    return outcome;
}

// A click without a drag picks, as everywhere with Alt.
Stroke_Outcome move_outline(Editor_Parts& editor) {
    const Stroke_Outcome outcome = run(editor, outline_stroke());
    if (outcome == Stroke_Outcome::nothing_changed) {
        const Tile_Point pixel = editor.canvas.tile_point(editor.pointer.point());
        const Color color = editor.canvas.seen_pixel(pixel, toolbox->state());
        toolbox->take({toolbox->figures(), Picked_Color{Mouse_Button::left, color}});
    }
    return outcome;
}

Stroke_Outcome draw(Editor_Parts& editor, Press_Meaning meaning) {
    switch (meaning) {
    case Press_Meaning::moves_copy: return move_copy(editor);
    case Press_Meaning::moves_outline: return move_outline(editor);
    default: break;
    }
    const Stroke_Row* const stroke = find_stroke(toolbox->state().canvas_action());
    return stroke == nullptr ? Stroke_Outcome::nothing_changed : run(editor, *stroke);
}

// Nothing is dragged by the right button, but with Alt it picks too.
Press_Meaning meaning_for_button(const Editor_Parts& editor) {
    const Press_Meaning meaning = meaning_of_press(editor);
    if (editor.pointer.button != Mouse_Button::right) {
        return meaning;
    }
    const bool has_alt = meaning == Press_Meaning::picks_color || meaning == Press_Meaning::moves_outline;
    return has_alt ? Press_Meaning::picks_color : Press_Meaning::uses_tool;
}

void draw_on_canvas(Editor_Parts& editor) {
    const Press_Meaning meaning = meaning_for_button(editor);
    toolbox->state().is_picking = meaning == Press_Meaning::picks_color;
    const bool uses_tool = meaning == Press_Meaning::uses_tool;
    const bool returns = uses_tool && picks_and_returns();
    const Tile_Point pressed = editor.canvas.tile_point(editor.pointer.point());
    Stroke_Outcome outcome = Stroke_Outcome::nothing_changed;
    editor.recorder.step([&] {
        outcome = draw(editor, meaning);
        const Command tool = row_of(toolbox->current_tool()).command;
        if (uses_tool && outcome != Stroke_Outcome::taken_back && editor.desk.float_wand_area(pressed)) {
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
    tool_commands::edit_palette_color(editor);
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
    case Double_Click::edit_selected_color: tool_commands::edit_palette_color(editor); break;
    }
}

Command press_beside_canvas(Editor_Parts& editor) {
    if (editor.documents.click_tab(editor.pointer.point())) {
        editor.leave_selection();
        return Command::none;
    }
    const Pane_Click click = editor.panes.click(editor.pointer, editor.clicks);
    answer_double_click(editor, click.twice);
    if (click.popup != Pane_Popup::none) {
        palette_menu::open(editor, click.popup);
    }
    return click.command;
}

void pan(Editor_Parts& editor) {
    editor.canvas.pan(editor.pointer, [&editor] {
        show_hover(editor.canvas, editor.pointer);
        show_pixel_under(editor.canvas, editor.pointer);
        editor.redraw(Present::yes);
    });
    forget_control();
}

} // namespace

Command press_mouse(Editor_Parts& editor) {
    const Mouse_Button button = editor.pointer.button;
    if (button == Mouse_Button::right && is_control_pressed()) {
        pan(editor);
        return Command::none;
    }
    if (button == Mouse_Button::none) {
        return Command::none;
    }
    if (!window_layout::canvas.contains(editor.pointer.point())) {
        return press_beside_canvas(editor);
    }
    if (button == Mouse_Button::right && held_modifiers().control) {
        // It was meant to pan, not to paint.
        editor.panes.hint_lines().report({"Ctrl and drag with the right button",
                                          "Ctrl has to be pressed anew, after any other key came up."});
    } else if (editor.canvas.tile() != nullptr) {
        draw_on_canvas(editor);
    }
    return Command::none;
}

} // namespace quadrelle
