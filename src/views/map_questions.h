#pragma once

// What is asked about the size of a map.

#include "map/tile_map.h"

#include <optional>

namespace quadrelle {

// Both answer nothing when the question was given up.
[[nodiscard]] std::optional<Size> ask_map_size();
// Returns what changes at which side of a map that has this size.
[[nodiscard]] std::optional<Map_Sides> ask_map_sides(Size size);

} // namespace quadrelle
