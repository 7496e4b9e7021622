#pragma once

// Which cells a fill reaches.

#include "map/tile_map.h"

#include <vector>

namespace quadrelle {

// Cells beside each other in one row.
struct Map_Run {
    Map_Point first;
    int length = 0;

    bool operator==(const Map_Run&) const = default;
};

// Returns the cells around `start` that have the same in them, joined at their sides. Of a point outside
// there are none.
[[nodiscard]] std::vector<Map_Run> filled_region(const Tile_Map& map, Map_Point start);

} // namespace quadrelle
