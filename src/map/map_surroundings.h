#pragma once

// What lies around a tile at a place of a map.

#include "base/geometry.h"
#include "map/edited_map.h"
#include "map/oriented_tile.h"

#include <optional>

namespace quadrelle {

// Returns what lies at that pixel of the tile at `place`, counted from the tile's corner and in the
// directions of the tile, however it lies there: inside of it, or outside in the neighbours. Transparent
// black where nothing lies.
[[nodiscard]] Color pixel_around(const Edited_Map& map, Tile_Pictures tiles, Size tile, Map_Point place,
                                 Tile_Point pixel);

// Returns where the tile with that index lies: there, if it does, or else at the first place that has it.
[[nodiscard]] std::optional<Map_Point> place_of(const Edited_Map& map, int tile,
                                                std::optional<Map_Point> preferred);

// Returns a picture that is wider by the margin at each side than the tile at `place`, and has what lies
// around it; where the tile itself is there is nothing.
[[nodiscard]] Tile picture_around(const Edited_Map& map, Tile_Pictures tiles, Size tile, Map_Point place,
                                  int margin);

} // namespace quadrelle
