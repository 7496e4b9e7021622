#pragma once

// The versions of a document's tiles beside the current tile, to be looked at, stored and taken back.

#include "tileset/tile_versions.h"

#include <optional>

namespace quadrelle {

// Waits until it is dismissed. Returns the slot that the user wants back, or nothing. The tile must have
// pixels.
[[nodiscard]] std::optional<int> show_versions(Tile_Versions& versions, const Tile& current);

} // namespace quadrelle
