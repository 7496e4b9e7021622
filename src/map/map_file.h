#pragma once

// Maps in files of their own, beside the tileset that they are laid out with.

#include "map/tile_map.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quadrelle {

// Tiles with larger indices can be in no file of a map.
constexpr int most_mapped_tiles = 65536;

// Returns the name of the file that belongs to the tileset in that one.
[[nodiscard]] std::string map_path(const std::string& tileset_path);

// The cells have indices of tiles.
[[nodiscard]] std::vector<std::uint8_t> encode_map(const Tile_Map& map);
// Returns nothing where the bytes are not exactly a map. Takes memory only after its size was judged.
[[nodiscard]] std::optional<Tile_Map> decode_map(std::span<const std::uint8_t> bytes);

enum class Map_File_State { missing, read, unreadable };

struct Read_Map {
    Map_File_State state = Map_File_State::missing;
    std::optional<Tile_Map> map; // present when it was read
};

[[nodiscard]] Read_Map read_map(const std::string& path);

} // namespace quadrelle
