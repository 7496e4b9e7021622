#pragma once

// The transforms of a tile where a part of it is selected: only that part is changed, and the selection goes
// with its pixels.

#include "commands/outcome.h"
#include "pixels/tile.h"
#include "selection/selection.h"

namespace quadrelle {

// Is refused for the rotation of a selection that is not as wide as high; every other command is unknown. The
// selection is not empty and has the tile's size. No pixel is lost: what a turned pixel comes to lie on takes
// its place. Scrolling leads the selected pixels of each row or column around among themselves.
[[nodiscard]] Outcome transform_selected(Tile& tile, Selection& selection, Command command);

} // namespace quadrelle
