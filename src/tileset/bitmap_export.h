#pragma once

// A whole tileset as one picture, and such a picture as a bitmap file.

#include "tileset/tileset.h"

#include <optional>
#include <string>

namespace quadrelle {

constexpr int export_columns = 16;
constexpr int export_rows = 16;
// Tiles beyond these, which only a file can bring, are left out.
constexpr int exported_tiles = export_columns * export_rows;

// Returns the tiles row by row, 16 in each of 16 rows, the current one as it is given, if it is. Cells that
// no tile is left for are opaque black.
[[nodiscard]] Tile export_picture(const Tileset& tileset, const std::optional<Tile>& current = std::nullopt);

// Writes a Windows bitmap with its alpha, under a UTF-8 name. Answers false when it could not be written; a
// file that was there is unchanged then.
[[nodiscard]] bool save_bitmap(const Tile& picture, const std::string& path);

} // namespace quadrelle
