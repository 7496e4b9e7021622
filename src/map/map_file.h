#pragma once

// Maps in files of their own, beside the tileset that they are laid out with.

#include "base/file_stamp.h"
#include "map/map_fit.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quadrelle {

// Returns the name of the file that belongs to the tileset in that one: another one for each name.
[[nodiscard]] std::string map_path(const std::string& tileset_path);

// The cells have indices of these tiles.
[[nodiscard]] std::vector<std::uint8_t> encode_map(const Tile_Map& map, const Tile_Sums& tiles);
// Returns nothing where the bytes are not exactly a map. Takes memory only after its size was judged.
[[nodiscard]] std::optional<Stored_Map> decode_map(std::span<const std::uint8_t> bytes);

enum class Map_File_State { missing, read, unreadable };

struct Read_Map {
    Map_File_State state = Map_File_State::missing;
    std::optional<Stored_Map> map; // present when it was read
    File_Stamp stamp;              // then too
};

[[nodiscard]] Read_Map read_map(const std::string& path);

} // namespace quadrelle
