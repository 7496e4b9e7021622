#include "views/history_questions.h"

#include "tileset/document.h"
#include "ui/dialogs.h"

#include <string>

namespace quadrelle {

namespace {

std::string in_pixels(Size tile) {
    return std::to_string(tile.width) + " x " + std::to_string(tile.height);
}

std::string count_of(int tiles) {
    return std::to_string(tiles) + (tiles == 1 ? " tile" : " tiles");
}

bool has_picture(const Tileset& tileset) {
    for (int i = 0; i < tileset.count(); ++i) {
        if (!tileset.tile_at(i).is_as_new()) {
            return true;
        }
    }
    return false;
}

std::string what_resizing_does(const Tileset& tileset, Size size) {
    if (size == tileset.tile_size()) {
        return "The tiles have that size already. Go on?";
    }
    return "Resize " + count_of(tileset.count()) + " from " + in_pixels(tileset.tile_size()) + " to " +
           in_pixels(size) + " pixels?\rScaling makes new colors and loses transparency.";
}

} // namespace

bool confirm_resize(const Tileset_Document& document, Size size) {
    const Tileset& tileset = document.tileset();
    const bool has_steps = document.history().has_steps();
    const bool loses_pixels = size != tileset.tile_size() && has_picture(tileset);
    if (!has_steps && !loses_pixels) {
        return true;
    }
    return dialogs->ask("Keep and resize", what_resizing_does(tileset, size) +
                                               (has_steps ? "\rThe undo history of the set is lost."
                                                          : "\rThis can't be undone."));
}

bool confirm_change_of(int tiles, std::string_view title) {
    return dialogs->ask(title,
                        "Change " + count_of(tiles) +
                            " of the set?\rThis can't be undone: the undo history of the set is lost.");
}

} // namespace quadrelle
