#pragma once

// The map of a set as the journal keeps it.

#include "base/packed_bytes.h"
#include "map/tile_map.h"

#include <optional>
#include <span>
#include <vector>

namespace quadrelle {

// A map whose cells have numbers that stay with their tiles, and the index of each.
struct Handed_Map {
    Tile_Map map;
    std::vector<int> index_of;
};

[[nodiscard]] Bytes packed_map(Handed_Map handed);
// Its cells have indices, of so many tiles; a place of any other one is empty. Nothing where it is no map.
[[nodiscard]] std::optional<Tile_Map> unpacked_map(std::span<const std::uint8_t> bytes, int tiles);

} // namespace quadrelle
