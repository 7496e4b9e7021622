#pragma once

// Maps as TMX, the XML that other map editors read: one layer, its cells as numbers between commas.

#include "map/tile_map.h"

#include <optional>
#include <string>
#include <string_view>

namespace quadrelle {

// The picture that the tiles are in, row by row.
struct Tmx_Tileset {
    std::string name;
    std::string picture; // the name of its file, in the folder of the map's
    Size tile;
    int count = 0;
    int columns = 1;
};

// The cells have indices of tiles.
[[nodiscard]] std::string tmx_text(const Tile_Map& map, const Tmx_Tileset& tileset);

struct Read_Tmx {
    std::optional<Tile_Map> map; // with indices of tiles
    std::string fault;           // why there is none, in words for people
    bool has_more = false;       // layers of other kinds, which are left out
};

// The map must have one layer, and fit so many tiles of that size.
[[nodiscard]] Read_Tmx read_tmx(std::string_view text, Size tile, int tile_count);

} // namespace quadrelle
