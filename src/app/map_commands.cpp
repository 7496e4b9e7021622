#include "app/map_commands.h"

#include "app/editor_parts.h"
#include "app/file_commands.h"
#include "base/file_names.h"
#include "map/map_file.h"
#include "tileset/document_file.h"
#include "ui/dialogs.h"
#include "views/map_editor.h"
#include "views/map_questions.h"

#include <optional>
#include <string>

namespace quadrelle::map_commands {

namespace {

bool wants_new_map(const Tileset_Document& document) {
    return !has_unreadable_map(document) ||
           dialogs->ask("Map editor",
                        file_part(map_path(document.file_name())) +
                            " beside the tileset is no map that can be read. It stays as it is\r"
                            "until you save and say that it may be replaced. Begin a new map?");
}

bool make_map(Editor_Parts& editor) {
    Tileset_Document& document = editor.documents.current();
    const std::optional<Size> size = wants_new_map(document) ? ask_map_size() : std::nullopt;
    if (!size) {
        return false;
    }
    document.set_map(Tile_Map(*size));
    editor.documents.mark_changed();
    return true;
}

std::string save(Editor_Parts& editor) {
    if (file_commands::save(editor) == Outcome::done) {
        return editor.documents.what_was_saved();
    }
    return editor.documents.current().is_modified() ? "It is not saved."
                                                    : "Nothing has changed since it was saved.";
}

// As a click in the strip: the tile comes into view as it is.
void go_to_tile(Editor_Parts& editor, int tile) {
    if (tile == editor.documents.current().tileset().current_index()) {
        return;
    }
    editor.recorder.step([&] {
        editor.documents.go_to_tile(tile);
        editor.follow_up(Command::change_tile);
        return Command::change_tile;
    });
}

} // namespace

Outcome edit(Editor_Parts& editor) {
    Tileset_Document& document = editor.documents.current();
    if (!document.tileset().has_tiles() || document.tileset().tile_bytes() == 0) {
        return editor.refuse(Command::map_editor, "This set has no tile with pixels to lay out a map of.");
    }
    if (document.map() == nullptr && !make_map(editor)) {
        return Outcome::refused;
    }
    // The map shows the tile as it is seen, and as it really lies.
    editor.desk.settle_to_save();
    editor.undo_seam_shifts();
    const Map_Editor_Links links{[&editor] { editor.documents.mark_changed(); },
                                 [&editor](bool was_modified) {
                                     editor.documents.mark_changed();
                                     if (!was_modified) {
                                         editor.documents.mark_unchanged();
                                     }
                                 },
                                 [&editor] { return save(editor); }};
    Map_Editor map_editor(document, links);
    if (const std::optional<Map_Visit> visit = map_editor.run()) {
        go_to_tile(editor, visit->tile);
        editor.has_come_by_click = true;
    }
    if (map_editor.is_map_unwanted()) {
        document.remove_map();
        editor.documents.mark_changed();
    }
    return Outcome::done;
}

} // namespace quadrelle::map_commands
