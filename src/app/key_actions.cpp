#include "app/key_actions.h"

#include "app/editor_parts.h"
#include "app/file_commands.h"
#include "app/tool_commands.h"
#include "panes/toolbox.h"
#include "tools/brush_masks.h"
#include "tools/options.h"

#include <algorithm>

namespace quadrelle {

namespace {

// The command of the size that is larger by so much; the same one at the end of the sizes.
Command brush_size_command(int step) {
    const int size_index = toolbox->state().chosen_brush.size_index() + step;
    return static_cast<Command>(index_of(Command::select_brush_size_1) +
                                std::clamp(size_index, 0, brush_size_count - 1));
}

// As drawing a rectangle around the whole tile does.
void select_all(Editor_Parts& editor) {
    editor.recorder.step([&editor] {
        return editor.desk.select_all() == Outcome::done ? Command::rectangle_selector : Command::none;
    });
}

Command plot_floating(Editor_Parts& editor) {
    if (editor.desk.shows_paste()) {
        return Command::plot_paste;
    }
    editor.panes.hint_lines().report({"Plot what floats", "Nothing floats over the tile."});
    return Command::none;
}

void go_to_next_set(Editor_Parts& editor) {
    if (editor.documents.go_to_next()) {
        editor.leave_selection();
    } else {
        editor.panes.hint_lines().report({"Next open tileset", "No other set is open."});
    }
}

void toggle_grid(Editor_Parts& editor) {
    editor.canvas.toggle_grid();
    if (options->value(Option::grid_intensity) == 0) {
        editor.panes.hint_lines().report({"Grid", "Its intensity is 0: see File, Options."});
    }
}

void toggle_surroundings(Editor_Parts& editor) {
    constexpr const char* name = "Neighbours in the map";
    const Tileset_Document& document = editor.documents.current();
    if (document.map() == nullptr) {
        editor.panes.hint_lines().report({name, "This set has no map yet: see Tools, Map editor."});
        return;
    }
    editor.canvas.toggle_surroundings();
    const bool is_there = document.uses_of_current() > 0;
    editor.panes.hint_lines().report({name, !editor.canvas.shows_surroundings()
                                                ? "They do not show around the tile."
                                            : is_there ? "They show around the tile."
                                                       : "The map does not have this tile."});
}

} // namespace

Command carry_out(Editor_Parts& editor, Key_Action action) {
    editor.panes.hint_lines().end_report();
    switch (action) {
    case Key_Action::select_all: select_all(editor); break;
    case Key_Action::plot_floating: return plot_floating(editor);
    case Key_Action::next_set: go_to_next_set(editor); break;
    case Key_Action::smaller_brush: return brush_size_command(-1);
    case Key_Action::larger_brush: return brush_size_command(1);
    case Key_Action::toggle_grid: toggle_grid(editor); break;
    case Key_Action::toggle_surroundings: toggle_surroundings(editor); break;
    case Key_Action::eraser: tool_commands::select_eraser(editor); break;
    case Key_Action::export_again: file_commands::export_again(editor); break;
    case Key_Action::none: break;
    }
    return Command::none;
}

} // namespace quadrelle
