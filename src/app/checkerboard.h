#pragma once

// What lies under a picture that may be transparent.

#include "app/geometry.h"
#include "tileset/tile.h"

namespace quadrelle {

// Textures do not repeat: as large as the largest area that it is to lie under.
[[nodiscard]] Tile checkerboard(Size area);

} // namespace quadrelle
