// What the editor does with the brush pad.

#include "app/editor.h"
#include "panes/toolbox.h"
#include "ui/dialogs.h"

#include <optional>

namespace quadrelle {

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

// With the selected pixels that are transparent too: the brush makes what it covers transparent there.
Brush_Source source_of(const Tile& tile, const Selection& selection) {
    const Rectangle bounds = selection.bounds();
    const Tile part(bounds.width, bounds.height);
    Brush_Source source{part, part};
    tile.paste_into(source.picture, -bounds.x, -bounds.y);
    selection.mask().paste_into(source.mask, -bounds.x, -bounds.y);
    return source;
}

// A paste only while it is to be seen.
std::optional<Brush_Source> chosen_source(const Canvas_View& canvas) {
    if (canvas.tile() == nullptr) {
        return std::nullopt;
    }
    if (canvas.shows_paste()) {
        return source_of(*canvas.work_area().paste());
    }
    const Work_Area& work = canvas.work_area();
    return work.has_selection() ? std::optional(source_of(*canvas.tile(), work.selection())) : std::nullopt;
}

bool uses_stamp_brush() {
    return toolbox->current_tool() == Tool::stamp_brush;
}

} // namespace

Command Editor::use_as_brush(Command command) {
    const std::optional<Brush_Source> source = chosen_source(canvas_);
    if (!source) {
        dialogs->message("Note", "Nothing selected to use as brush.");
        return Command::none;
    }
    if (!toolbox->use_as_brush(source->picture, source->mask)) {
        dialogs->message("Note", "Unable to add a new brush for some reason.");
        return Command::none;
    }
    select_tool(Command::stamp_brush);
    return command;
}

Command Editor::move_brush_to_pad(Command command) {
    if (!uses_stamp_brush()) {
        dialogs->message("Note", "Select stamp brush tool to copy the current brush to the pad.");
        return Command::none;
    }
    if (!toolbox->move_to_pad()) {
        dialogs->message("Note",
                         "Failed to add brush to pad. Either it's already there,\rthere is no current "
                         "brush or the pad is full.");
        return Command::none;
    }
    return command;
}

Command Editor::delete_brush(Command command) {
    if (!uses_stamp_brush()) {
        dialogs->message("Note", "Select stamp brush tool to delete the current brush.");
        return Command::none;
    }
    if (!toolbox->delete_brush()) {
        dialogs->message("Note", "There is no brush selected to delete from the pad.");
        return Command::none;
    }
    return command;
}

} // namespace quadrelle
