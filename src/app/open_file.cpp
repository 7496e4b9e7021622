#include "app/open_file.h"

#include "app/editor_parts.h"
#include "app/palette_exchange.h"
#include "color/palette_formats.h"
#include "pixels/picture_formats.h"
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

// To load a set that is cut off ends the program, deliberately; to drop one does not.
bool open_set(Editor_Parts& editor, const std::string& path, File_Origin origin) {
    const bool may_be_one = origin == File_Origin::chosen || is_whole_tileset(path);
    if (!may_be_one || !editor.documents.load_document(path)) {
        dialogs->message("Note",
                         "Error occurred in tileset loading. This file may not be in Quadrelle format.");
        return false;
    }
    editor.leave_selection();
    editor.recorder.record(Command::change_tile);
    return true;
}

} // namespace

Outcome open_file(Editor_Parts& editor, const std::string& path, File_Origin origin) {
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
