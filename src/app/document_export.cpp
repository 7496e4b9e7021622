#include "app/document_export.h"

#include "app/selection_desk.h"
#include "tileset/bitmap_export.h"
#include "tileset/document.h"
#include "ui/dialogs.h"
#include "views/ask_for_file.h"
#include "views/export_dialog.h"

namespace quadrelle {

std::optional<std::string> export_bitmap(const Tileset_Document& document, Selection_Desk& desk) {
    const Tileset& tileset = document.tileset();
    if (tileset.tile_bytes() == 0) {
        dialogs->message("Note", "The tiles of this set have no pixels.");
        return std::nullopt;
    }
    const Tile picture = export_picture(tileset, desk.settled_tile());
    std::string path = document.file_name();
    if (!Export_Dialog(picture, tileset.count()).run() ||
        !choose_file(File_Dialog_Kind::export_bitmap, path)) {
        return std::nullopt;
    }
    desk.settle_to_save();
    if (!save_bitmap(picture, path)) {
        dialogs->message("Note", "Could not save the file.");
        return std::nullopt;
    }
    return path;
}

} // namespace quadrelle
