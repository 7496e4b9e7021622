// The views of the whole set, and of the tile in real size.

#include "app/editor.h"

#include "views/arrange_select.h"
#include "views/real_size.h"
#include "views/tile_array.h"

namespace quadrelle {

Command Editor::view_in_real_size(Command command) {
    show_real_size(canvas_.tile());
    return command;
}

Command Editor::arrange(Command command) {
    Tileset_Document& document = documents_.current();
    const int before = document.tileset().current_index();
    const bool has_swapped = Arrangement(document.tileset()).run();
    take_current_tile();
    if (document.tileset().current_index() != before) {
        document.strip().show_current();
    }
    if (has_swapped) {
        // Another picture came into view, though maybe in the same tile.
        canvas_.save_history();
        document.history().reset(document.tileset());
        documents_.mark_changed();
    }
    return command;
}

// A click is the command "Change tile". After a mere look the seam tools stand as before.
Command Editor::view_tile_array(Command command) {
    Tileset& tileset = documents_.current().tileset();
    const bool has_horizontal_shift = canvas_.horizontal_seam_shift() != no_seam_shift;
    const bool has_vertical_shift = canvas_.vertical_seam_shift() != no_seam_shift;
    canvas_.undo_seam_shifts();
    const std::optional<int> clicked = show_tile_array(tileset);
    if (clicked && *clicked != tileset.current_index()) {
        tileset.select(*clicked);
        return Command::change_tile;
    }
    if (has_horizontal_shift) {
        canvas_.toggle_seam_shift(Seam::horizontal);
    }
    if (has_vertical_shift) {
        canvas_.toggle_seam_shift(Seam::vertical);
    }
    return command;
}

} // namespace quadrelle
