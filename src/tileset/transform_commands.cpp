#include "tileset/transform_commands.h"

#include "selection/scroll.h"
#include "selection/transform_table.h"

namespace quadrelle {

Outcome transform_tile(Tile* tile, Command command) {
    const Transform_Row* const row = find_transform(command);
    if (row == nullptr && command != Command::anti_alias) {
        return Outcome::unknown;
    }
    if (tile == nullptr) {
        return Outcome::refused;
    }
    if (row == nullptr) {
        tile->anti_alias();
    } else if (row->placement == nullptr) {
        scroll_wrapped(*tile, row->step);
    } else if (row->placement->fits(tile->size())) {
        place(Tile(*tile), *tile, *row->placement);
    } else {
        return Outcome::refused;
    }
    return Outcome::done;
}

} // namespace quadrelle
