#pragma once

// The commands that turn, mirror, scroll or soften one whole tile. Knows neither sets nor views.

#include "commands/command.h"
#include "pixels/tile.h"

namespace quadrelle {

// Returns the command when it was carried out, `skip_command` where it was refused, without a tile and for
// the rotation of a tile that is not square, and none for every other command.
[[nodiscard]] Command transform_tile(Tile* tile, Command command);

} // namespace quadrelle
