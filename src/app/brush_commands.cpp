#include "app/brush_commands.h"

#include "app/editor_parts.h"
#include "app/tool_commands.h"
#include "panes/toolbox.h"
#include "ui/dialogs.h"

#include <optional>
#include <string>

namespace quadrelle::brush_commands {

namespace {

// The mask is white where the brush is to paint.
struct Brush_Source {
    Tile picture;
    Tile mask;
};

Brush_Source source_of(const Floating_Paste& paste) {
    Brush_Source source{paste.picture, paste.picture};
    source.mask.map_colours(
        [](Color pixel) { return pixel.a == 0 ? Selection::unselected_color : Selection::selected_color; });
    return source;
}

// A paste only while it is to be seen.
std::optional<Brush_Source> chosen_source(const Editor_Parts& editor) {
    const Canvas_View& canvas = editor.canvas;
    if (canvas.tile() == nullptr) {
        return std::nullopt;
    }
    if (editor.desk.shows_paste()) {
        return source_of(*canvas.work_area().paste());
    }
    const Work_Area& work = canvas.work_area();
    return work.has_selection() ? std::optional(source_of(lifted(*canvas.tile(), work.selection())))
                                : std::nullopt;
}

bool uses_stamp_brush() {
    return toolbox->current_tool() == Tool::stamp_brush;
}

// Which would keep the brush inside of it. After this step the tool is the stamp brush, unless that still has
// to wait for what floats, which the selection covered.
void leave_selection(Editor_Parts& editor) {
    Work_Area& work = editor.canvas.work_area();
    if (!work.has_selection()) {
        return;
    }
    editor.recorder.step([&work] {
        work.deselect();
        if (!work.paste()) {
            toolbox->select(Command::stamp_brush);
        }
        return Command::deselect;
    });
}

Outcome refuse(std::string_view reason) {
    dialogs->message("Note", reason);
    return Outcome::refused;
}

} // namespace

Outcome use_as_brush(Editor_Parts& editor) {
    const std::optional<Brush_Source> source = chosen_source(editor);
    if (!source) {
        return refuse("Nothing selected to use as brush.");
    }
    if (!toolbox->use_as_brush(source->picture, source->mask)) {
        return refuse("Unable to add a new brush for some reason.");
    }
    leave_selection(editor);
    return tool_commands::select_tool(editor, Tool::stamp_brush);
}

Outcome move_to_pad(Editor_Parts& editor) {
    if (!uses_stamp_brush()) {
        return refuse("Select stamp brush tool to copy the current brush to the pad.");
    }
    if (!toolbox->move_to_pad()) {
        return refuse("Failed to add brush to pad. Either it's already there,\rthere is no current "
                      "brush or the pad is full.");
    }
    editor.report(Command::move_to_pad, "The brush lies on the pad now, also when you start again.");
    return Outcome::done;
}

Outcome delete_brush(Editor_Parts& /*editor*/) {
    if (!uses_stamp_brush()) {
        return refuse("Select stamp brush tool to delete the current brush.");
    }
    if (!toolbox->delete_brush()) {
        return refuse("There is no brush selected to delete from the pad.");
    }
    return Outcome::done;
}

// The row that shows it belongs to some of the tools only.
Outcome select_size(Editor_Parts& editor, int size_index) {
    toolbox->select_brush_size(size_index);
    if (!row_of(toolbox->current_tool()).uses_brush) {
        const int width = size_index + 1;
        editor.report(static_cast<Command>(index_of(Command::select_brush_size_1) + size_index),
                      "The brush is " + std::to_string(width) + " x " + std::to_string(width) + " pixels.");
    }
    return Outcome::done;
}

} // namespace quadrelle::brush_commands
