#pragma once

// Moving pixels around: what leaves one edge enters at the other.

#include "base/geometry.h"
#include "pixels/tile.h"
#include "selection/selection.h"

namespace quadrelle {

// Scrolls the tile by any number of pixels, to the right and down where positive.
void scroll_wrapped(Tile& tile, Tile_Point offset);
// Moves only the selected pixels of each row, and then of each column, around among themselves. The selection
// has the tile's size.
void scroll_selected(Tile& tile, const Selection& selection, Tile_Point offset);

} // namespace quadrelle
