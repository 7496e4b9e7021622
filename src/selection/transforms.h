#pragma once

// The commands that turn, mirror, scroll or soften a tile, or what is selected of it. Knows neither sets nor
// views.

#include "commands/outcome.h"
#include "pixels/tile.h"
#include "selection/selection.h"

namespace quadrelle {

// Both are refused for the rotation of an area that is not as wide as high; every other command is unknown.

// Is also refused without a tile.
[[nodiscard]] Outcome transform_tile(Tile* tile, Command command);
// Only the selected part is changed, and the selection goes with its pixels; it is not empty and has the
// tile's size. No pixel is lost: what a turned pixel comes to lie on takes its place. Scrolling leads the
// selected pixels of each row or column around among themselves.
[[nodiscard]] Outcome transform_selected(Tile& tile, Selection& selection, Command command);

} // namespace quadrelle
