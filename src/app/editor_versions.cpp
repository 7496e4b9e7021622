// How the editor shows the versions of a tile and takes one back.

#include "app/editor.h"
#include "views/versions_dialog.h"

namespace quadrelle {

// Without pixels there is nothing to keep.
Command Editor::show_versions(Command command) {
    Tileset_Document& document = documents_.current();
    const Tile* const tile = document.tileset().current_tile();
    if (tile == nullptr || tile->pixel_count() == 0) {
        return Command::skip_command;
    }
    const std::optional<int> slot = quadrelle::show_versions(document.versions(), *tile);
    if (!slot) {
        return command;
    }
    // From there on it is a paste like others.
    float_paste({document.versions().copy(*slot, tile->size()), {0, 0}});
    return Command::paste;
}

} // namespace quadrelle
