#pragma once

// A map that was stored with the tiles of its set comes back to tiles that may be others by now.

#include "map/oriented_tile.h"
#include "map/tile_map.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quadrelle {

// A checksum of the pixels of each tile of a set.
using Tile_Sums = std::vector<std::uint32_t>;
[[nodiscard]] Tile_Sums sums_of(Tile_Pictures tiles);

struct Stored_Map {
    Tile_Map map;                   // with the indices that its tiles had
    std::optional<Tile_Sums> tiles; // of that time, where they were stored
};

struct Fitted_Map {
    std::optional<Tile_Map> map;  // with indices of the tiles of now; none where nothing of it fits
    bool has_other_tiles = false; // than those of that time
    int emptied = 0;              // places whose tile is gone
};

// Each place has the tile that looks as the one that it had, and where none does, the one that was changed
// since.
[[nodiscard]] Fitted_Map fitted(Stored_Map stored, const Tile_Sums& tiles);

} // namespace quadrelle
