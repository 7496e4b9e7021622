#include "app/open_file.h"

#include "app/editor_parts.h"
#include "app/palette_exchange.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "color/palette_formats.h"
#include "pixels/picture_formats.h"
#include "tileset/history_file.h"
#include "tileset/tileset_file.h"
#include "ui/dialogs.h"
#include "views/picture_dialog.h"

#include <utility>

namespace quadrelle {

namespace {

Outcome make_set_of(Editor_Parts& editor, const Tile& picture) {
    std::optional<Tileset> tileset = Picture_Dialog(picture).run();
    if (!tileset) {
        return Outcome::refused;
    }
    const int count = tileset->count();
    if (!editor.documents.add_unsaved(std::move(*tileset))) {
        dialogs->message("Note",
                         "There were so many untitled sets that no more can be made until the next start.");
        return Outcome::refused;
    }
    // What was selected in another set means nothing here.
    editor.canvas.work_area().deselect();
    editor.report(Command::load, "A new set of " + std::to_string(count) + (count == 1 ? " tile" : " tiles"));
    return Outcome::done;
}

// What a file holds behind its tiles is no part of the set, and saving takes it away.
std::string what_to_know(const Documents& documents) {
    const std::int64_t surplus = documents.current().own_file()->surplus;
    if (surplus > 0) {
        return "The file holds " + std::to_string(surplus) +
               " bytes more than its tiles. When the set is saved, a copy of all of it is kept first, in "
               "data/previous.";
    }
    return documents.is_open_twice()
               ? "This file is open in another tab too. Neither overwrites what the other "
                 "one saved without a question."
               : "";
}

void tell_what_to_know(Editor_Parts& editor) {
    if (const std::string text = what_to_know(editor.documents); !text.empty()) {
        const std::string name = file_part(editor.documents.current().file_name());
        editor.panes.hint_lines().report_lastingly({name, text});
    }
}

bool show_open_set(Editor_Parts& editor, const std::string& path) {
    if (!editor.documents.go_to_file(path)) {
        return false;
    }
    editor.leave_selection();
    editor.report(Command::load, file_part(path) + " is open already, in this tab.");
    return true;
}

// To load a set that is cut off ends the program, deliberately; to drop one does not.
bool open_set(Editor_Parts& editor, const std::string& path, File_Origin origin) {
    const bool may_be_one = origin == File_Origin::chosen || is_whole_tileset(path);
    if (!may_be_one || !editor.documents.load_document(path)) {
        dialogs->file_message("Error occurred in tileset loading. This file may not be in Quadrelle format.",
                              path);
        return false;
    }
    editor.leave_selection();
    if (bring_history_back(editor.documents.current())) {
        editor.report(Command::load,
                      "Its history is back: undo goes on where it was when the set was saved.");
    } else {
        editor.recorder.record(Command::change_tile);
    }
    tell_what_to_know(editor);
    return true;
}

} // namespace

Outcome open_file(Editor_Parts& editor, const std::string& path, File_Origin origin) {
    // Who chooses a file in the dialog gets it once more, as it is on the disk: deliberately.
    if (origin == File_Origin::dropped && show_open_set(editor, path)) {
        return Outcome::refused;
    }
    const bool is_table = is_color_table(path);
    const Decoded_Picture decoded =
        is_table ? Decoded_Picture{{}, Picture_Fault::unknown} : read_picture(path);
    if (decoded.picture) {
        return make_set_of(editor, *decoded.picture);
    }
    if (decoded.fault == Picture_Fault::broken || decoded.fault == Picture_Fault::too_large) {
        dialogs->message("Note", text_of(decoded.fault));
        return Outcome::refused;
    }
    if (is_named_as_palette(path) || read_palette_file(path).palette) {
        palette_exchange::import_palette(editor, path);
        return Outcome::refused;
    }
    return open_set(editor, path, origin) ? Outcome::done : Outcome::refused;
}

} // namespace quadrelle
