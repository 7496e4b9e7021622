#include "app/tileset_commands.h"

#include "app/editor_parts.h"
#include "ui/dialogs.h"
#include "views/arrange_select.h"
#include "views/document_statistics.h"
#include "views/tile_array.h"

#include <optional>
#include <string>
#include <string_view>

namespace quadrelle::tileset_commands {

Outcome leave_to_document(Editor_Parts& editor, Command command) {
    return outcome_of(editor.documents.current().handle_command(command));
}

namespace {

// Why it leads to no other tile; empty where it does.
std::string_view obstacle(const Tileset& tileset, Command command) {
    switch (command) {
    case Command::next_tile: return tileset.is_last() ? "This is the last tile." : "";
    case Command::previous_tile: return tileset.current_index() > 0 ? "" : "This is the first tile.";
    default: return tileset.is_full() ? "The set has all the tiles that it has room for." : "";
    }
}

// No step of the history brings a tile back. One that is as when it was added has no picture to lose.
std::string keep_picture(Editor_Parts& editor, const Tile& tile) {
    if (tile.is_as_new()) {
        return "";
    }
    editor.desk.keep(tile);
    return "Its picture is kept in \"Previous copies\": Paste (^v) brings it back.";
}

std::string places_emptied(int places) {
    return places == 0   ? ""
           : places == 1 ? "One place of the map is empty now."
                         : std::to_string(places) + " places of the map are empty now.";
}

// That is a step, which can be undone.
Outcome make_tile_black(Editor_Parts& editor) {
    const Tileset& tileset = editor.documents.current().tileset();
    const Tile before(*tileset.current_tile());
    Outcome outcome = Outcome::refused;
    editor.recorder.step([&] {
        leave_to_document(editor, Command::delete_tile);
        if (tileset.current_tile()->same_pixels(before)) {
            return Command::none;
        }
        editor.leave_selection();
        editor.report(Command::delete_tile, "The last tile stays, black: Undo (^z) brings its picture back.");
        outcome = Outcome::done;
        return Command::delete_tile;
    });
    return outcome;
}

} // namespace

Outcome show_another_tile(Editor_Parts& editor, Command command) {
    const std::string_view why_not = obstacle(editor.documents.current().tileset(), command);
    if (!why_not.empty()) {
        return editor.refuse(command, why_not);
    }
    editor.leave_tile();
    return leave_to_document(editor, command);
}

// The last tile is not taken away but made black.
Outcome delete_tile(Editor_Parts& editor) {
    editor.leave_tile();
    const Tileset& tileset = editor.documents.current().tileset();
    if (tileset.count() == 1) {
        return make_tile_black(editor);
    }
    const std::string kept = keep_picture(editor, *tileset.current_tile());
    const std::string emptied = places_emptied(editor.documents.current().uses_of_current());
    if (!kept.empty() || !emptied.empty()) {
        editor.report(Command::delete_tile, kept + (kept.empty() || emptied.empty() ? "" : " ") + emptied);
    }
    return leave_to_document(editor, Command::delete_tile);
}

Outcome arrange_select(Editor_Parts& editor) {
    Tileset_Document& document = editor.documents.current();
    const int before = document.tileset().current_index();
    const bool has_swapped = Arrangement(document).run([&editor] { editor.leave_tile(); },
                                                       [&editor] { editor.documents.mark_changed(); });
    editor.show_current_tile();
    if (document.tileset().current_index() != before) {
        document.strip().show_current();
        editor.leave_selection();
    }
    if (has_swapped) {
        // Another picture came into view, though maybe in the same tile.
        editor.canvas.save_history();
        editor.canvas.work_area().leave_tile();
        document.history().reset(document.tileset());
        editor.documents.mark_changed();
    }
    return Outcome::done;
}

// A click is the command "Change tile", which leaves the tile as it is seen: the seam tools stand as before.
Outcome view_tile_array(Editor_Parts& editor) {
    Tileset& tileset = editor.documents.current().tileset();
    Canvas_View& canvas = editor.canvas;
    const Tile_Point shifts = canvas.seam_shifts();
    canvas.restore_seam_shifts({});
    const std::optional<int> clicked = show_tile_array(tileset);
    canvas.restore_seam_shifts(shifts);
    if (clicked && *clicked != tileset.current_index()) {
        editor.recorder.step([&] {
            editor.documents.go_to_tile(*clicked);
            editor.follow_up(Command::change_tile);
            return Command::change_tile;
        });
    }
    return Outcome::done;
}

Outcome statistics(Editor_Parts& editor) {
    dialogs->message("Statistics", statistics_text(editor.documents.current()));
    return Outcome::done;
}

} // namespace quadrelle::tileset_commands
