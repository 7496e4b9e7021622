#pragma once

// What the gestures place on a map.

#include "map/edited_map.h"
#include "map/map_stamp.h"

namespace quadrelle {

void place_at(Edited_Map& map, const Map_Pattern& pattern, Map_Point point);
// Along a line without gaps, on from where it was placed.
void place_line(Edited_Map& map, const Map_Pattern& pattern, Map_Point from, Map_Point to);
// In all cells between two corners, both included.
void place_rectangle(Edited_Map& map, const Map_Pattern& pattern, Map_Point corner, Map_Point other);
// In all cells that a fill from there reaches.
void place_region(Edited_Map& map, const Map_Pattern& pattern, Map_Point start);

// Returns the cells between two corners, both included.
[[nodiscard]] Rectangle cells_between(Map_Point corner, Map_Point other);

} // namespace quadrelle
