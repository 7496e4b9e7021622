// What the editor records, takes back and does again.

#include "app/editor.h"

#include "commands/command_table.h"
#include "panes/toolbox.h"
#include "views/undo_list.h"

#include <utility>

namespace quadrelle {

namespace {

// A tile from another one, or none, is where the next state comes from.
bool is_edit(Command kind) {
    return row_of(kind).category == Command_Category::pixels ||
           row_of(kind).category == Command_Category::selection;
}

} // namespace

void Editor::record(Command kind, std::optional<Undo_Entry> floor) {
    Tileset_Document& document = documents_.current();
    if (!document.tileset().has_tiles()) {
        return;
    }
    if (floor && is_edit(kind)) {
        document.history().add(std::move(*floor));
    }
    canvas_.with_tile_in_place([&] {
        document.history().add(
            undo_entry_of(document.tileset(), kind, toolbox->current_tool(), canvas_.work_area().state()));
    });
}

std::optional<Undo_Entry> Editor::missing_floor() {
    Tileset_Document& document = documents_.current();
    std::optional<Undo_Entry> floor;
    if (!document.tileset().has_tiles()) {
        return floor;
    }
    canvas_.with_tile_in_place([&] {
        const Undo_Entry* const entry = document.history().current();
        const bool is_known = entry != nullptr && entry->tile_index == document.tileset().current_index() &&
                              canvas_.work_area() == entry->work;
        if (!is_known) {
            floor = undo_entry_of(document.tileset(), Command::change_tile, toolbox->current_tool(),
                                  canvas_.work_area().state());
        }
    });
    return floor;
}

void Editor::record_nudge(std::optional<Undo_Entry> floor) {
    Undo_History& history = documents_.current().history();
    const Undo_Entry* const last = history.current();
    if (!floor && last != nullptr && last->work.paste && last->work.paste == nudged_.lock()) {
        // What is recorded next takes the place of what was undone.
        static_cast<void>(history.undo());
    }
    record(Command::work_selection, std::move(floor));
    documents_.mark_changed();
    if (history.current() != nullptr) {
        nudged_ = history.current()->work.paste;
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
        documents_.current().strip().show_current();
    }
    canvas_.with_tile_in_place([&] {
        entry->snapshot->tile.copy_to(*tileset.current_tile());
        canvas_.work_area().restore(entry->work);
    });
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
