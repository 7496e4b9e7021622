// What the editor records, takes back and does again.

#include "app/editor.h"
#include "tools/toolbox.h"
#include "views/undo_list.h"

namespace quadrelle {

void Editor::record(Command kind) {
    Tileset_Document& document = documents_.current();
    if (document.tileset().has_tiles()) {
        canvas_.with_tile_in_place([&] {
            document.history().add(undo_entry_of(document.tileset(), kind, toolbox->current_tool()));
        });
    }
}

Command Editor::undo(Command command) {
    return restore(documents_.current().history().undo()) ? command : Command::skip_command;
}

Command Editor::redo(Command command) {
    return restore(documents_.current().history().redo()) ? command : Command::skip_command;
}

bool Editor::restore(const Undo_Entry* entry) {
    if (entry == nullptr) {
        return false;
    }
    Tileset& tileset = documents_.current().tileset();
    if (entry->tile_index != tileset.current_index()) {
        tileset.select(entry->tile_index);
        take_current_tile();
    }
    entry->snapshot->tile.copy_to(*tileset.current_tile());
    if (entry->tool != toolbox->current_tool()) {
        toolbox->select(row_of(entry->tool).command);
    }
    documents_.mark_changed();
    return true;
}

Command Editor::show_undo_history(Command command) {
    show_undo_list(documents_.current().history());
    return command;
}

} // namespace quadrelle
