#include "map/map_strokes.h"

#include "map/map_region.h"
#include "tools/line.h"

#include <algorithm>
#include <cstdlib>

namespace quadrelle {

namespace {

void place_in(Edited_Map& map, const Map_Pattern& pattern, const Rectangle& area) {
    const Rectangle inside = intersection(area, map.map().area());
    for (int y = inside.y; y < inside.bottom(); ++y) {
        for (int x = inside.x; x < inside.right(); ++x) {
            if (const std::optional<Map_Cell> cell = pattern.at({x, y})) {
                map.set({x, y}, *cell);
            }
        }
    }
}

} // namespace

Rectangle cells_between(Map_Point corner, Map_Point other) {
    return {std::min(corner.x, other.x), std::min(corner.y, other.y), std::abs(corner.x - other.x) + 1,
            std::abs(corner.y - other.y) + 1};
}

void place_at(Edited_Map& map, const Map_Pattern& pattern, Map_Point point) {
    place_in(map, pattern, pattern.reach(point));
}

void place_line(Edited_Map& map, const Map_Pattern& pattern, Map_Point from, Map_Point to) {
    walk_line({from.x, from.y}, {to.x, to.y}, [&](Tile_Point point) {
        place_at(map, pattern, {point.x, point.y});
    });
}

void place_rectangle(Edited_Map& map, const Map_Pattern& pattern, Map_Point corner, Map_Point other) {
    place_in(map, pattern, cells_between(corner, other));
}

void place_region(Edited_Map& map, const Map_Pattern& pattern, Map_Point start) {
    for (const Map_Run& run : filled_region(map.map(), start)) {
        place_in(map, pattern, {run.first.x, run.first.y, run.length, 1});
    }
}

} // namespace quadrelle
