#pragma once

// How a picture that somebody made is probably divided into tiles.

#include "tileset/picture_tiles.h"

namespace quadrelle {

// By the transparent lines between its tiles, else by those at their edges, else by the usual sizes that
// divide it.
[[nodiscard]] Picture_Grid guess_grid(const Tile& picture);

} // namespace quadrelle
