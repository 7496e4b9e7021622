#pragma once

// A tile as a square of fixed size, whatever its own size is. Knows neither window nor tilesets.

#include "base/geometry.h"
#include "color/pixel_rows.h"

namespace quadrelle {

class Tile;

constexpr int thumbnail_edge = 24;

// Over a checkerboard where the tile is translucent. The square at `position` must lie inside of the target.
void paint_thumbnail(const Tile& tile, Point position, const Pixel_Rows& target);
// Makes the line stand out from what was painted there, so that it is seen where one tile ends and the next
// begins.
void paint_edge(const Rectangle& line, const Pixel_Rows& target);

} // namespace quadrelle
