#include "tileset/tile_versions.h"

namespace quadrelle {

Tile_Versions::Tile_Versions(Size tile_size) {
    const Tile new_tile(tile_size.width, tile_size.height);
    for (Slot& slot : slots_) {
        slot.snapshot = std::make_unique<const Tile_Snapshot>(new_tile);
    }
}

void Tile_Versions::store(int slot, const Tile& tile) {
    slots_.at(static_cast<std::size_t>(slot)) = {std::make_unique<const Tile_Snapshot>(tile), true};
}

Tile Tile_Versions::copy(int slot, Size tile_size) const {
    Tile result(tile_size.width, tile_size.height);
    tile(slot).resample_into(result);
    return result;
}

} // namespace quadrelle
