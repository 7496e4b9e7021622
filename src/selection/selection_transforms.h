#pragma once

// The transforms of a tile where a part of it is selected: only that part is changed, and the selection goes
// with its pixels.

#include "commands/command.h"
#include "pixels/tile.h"
#include "selection/selection.h"

namespace quadrelle {

// Returns the command when it was carried out, `skip_command` where it was refused, for the rotation of a
// selection that is not as wide as high, and none for every other command. The selection is not empty and has
// the tile's size. No pixel is lost: what a turned pixel comes to lie on takes its place. Scrolling leads the
// selected pixels of each row or column around among themselves.
[[nodiscard]] Command transform_selected(Tile& tile, Selection& selection, Command command);

} // namespace quadrelle
