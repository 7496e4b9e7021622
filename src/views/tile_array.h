#pragma once

// "View tile array": the whole set at a glance.

#include <optional>

namespace quadrelle {

class Tileset;

// Waits until it is closed. Returns the tile that was clicked, if one was.
[[nodiscard]] std::optional<int> show_tile_array(const Tileset& tileset);

} // namespace quadrelle
