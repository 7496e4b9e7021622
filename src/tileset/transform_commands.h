#pragma once

// The commands that turn, mirror, scroll or soften one whole tile. Knows neither sets nor views.

#include "commands/outcome.h"
#include "pixels/tile.h"

namespace quadrelle {

// Is refused without a tile, and for the rotation of a tile that is not square; every other command is
// unknown.
[[nodiscard]] Outcome transform_tile(Tile* tile, Command command);

} // namespace quadrelle
