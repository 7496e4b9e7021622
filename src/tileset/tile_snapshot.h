#pragma once

// A tile as it was at one moment. Knows nothing of tilesets.

#include "pixels/tile.h"

#include <cstddef>

namespace quadrelle {

struct Tile_Snapshot {
    explicit Tile_Snapshot(const Tile& source) : tile(source) {}

    // Counts as the statistics do: the tile, and 8 bytes for a position.
    [[nodiscard]] std::size_t memory_size() const { return 8 + tile.memory_size(); }

    Tile tile;
};

} // namespace quadrelle
