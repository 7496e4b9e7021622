#pragma once

// What lies around a tile at a place of a map.

#include "base/geometry.h"
#include "map/edited_map.h"
#include "map/oriented_tile.h"

namespace quadrelle {

// Returns what lies at that pixel of the tile at `place`, counted from the tile's corner and in the
// directions of the tile, however it lies there: inside of it, or outside in the neighbours. Transparent
// black where nothing lies.
[[nodiscard]] Color pixel_around(const Edited_Map& map, Tile_Pictures tiles, Size tile, Map_Point place,
                                 Tile_Point pixel);

} // namespace quadrelle
