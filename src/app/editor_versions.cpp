// How the editor shows the versions of a tile and takes one back.

#include "app/editor.h"
#include "views/versions_dialog.h"

#include <algorithm>

namespace quadrelle {

// Without pixels there is nothing to keep.
Command Editor::show_versions(Command command) {
    Tileset_Document& document = documents_.current();
    const Tile* const tile = document.tileset().current_tile();
    if (tile == nullptr || tile->pixel_count() == 0) {
        return Command::skip_command;
    }
    const std::optional<int> slot = quadrelle::show_versions(document.versions(), *tile);
    return slot ? float_paste(document.versions().copy(*slot, tile->size())) : command;
}

Command Editor::float_paste(const Tile& picture) {
    Tile& tile = *documents_.current().tileset().current_tile();
    if (std::ranges::equal(picture.pixels(), tile.pixels())) {
        return Command::skip_command;
    }
    picture.copy_to(tile);
    return Command::plot_paste;
}

} // namespace quadrelle
