#pragma once

// The ways of a map to other programs and back. Each tells the user what failed.

#include "map/tile_map.h"

#include <optional>
#include <string>

namespace quadrelle {

class Tileset_Document;

// Asks for a name, whose ending says what is written. Returns the file's name when there is a new one. The
// document has a map.
[[nodiscard]] std::optional<std::string> export_map(const Tileset_Document& document);

// Asks for a file. The cells have indices of tiles of the document.
[[nodiscard]] std::optional<Tile_Map> import_map(const Tileset_Document& document);

} // namespace quadrelle
