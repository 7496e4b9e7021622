#include "map/map_strokes.h"

#include "map/map_region.h"
#include "tools/line.h"

#include <algorithm>
#include <cstdlib>

namespace quadrelle {

namespace {

void place_in(Edited_Map& map, const Map_Pattern& pattern, const Rectangle& area) {
    const Rectangle inside = intersection(area, map.map().area());
    if (inside.is_empty()) {
        return;
    }
    for (int y = inside.y; y < inside.bottom(); ++y) {
        pattern.place({inside.x, y}, map.row_to_change({inside.x, y}, inside.width));
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

// What lies in both places is there already: a stamp as large as the map would take seconds each time.
void place_line(Edited_Map& map, const Map_Pattern& pattern, Map_Point from, Map_Point to) {
    Rectangle before = pattern.reach(from);
    walk_line({from.x, from.y}, {to.x, to.y}, [&](Tile_Point point) {
        const Rectangle next = pattern.reach({point.x, point.y});
        const Rectangle both = intersection(before, next);
        place_in(map, pattern, {next.x, next.y, next.width, both.y - next.y});
        place_in(map, pattern, {next.x, both.bottom(), next.width, next.bottom() - both.bottom()});
        place_in(map, pattern, {next.x, both.y, both.x - next.x, both.height});
        place_in(map, pattern, {both.right(), both.y, next.right() - both.right(), both.height});
        before = next;
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
