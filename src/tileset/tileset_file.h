#pragma once

// Tilesets in ".qdl" files: 11 bytes of header, then the pixels of all tiles.

#include "base/file_stamp.h"
#include "tileset/tileset.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quadrelle {

constexpr std::int64_t tileset_header_size = 11;

// Returns the bytes written, or -1 with the old file, if any, unchanged and nothing left behind. What was
// written is read again and compared before it takes the old file's place. Of a symbolic link the file that
// it points to is replaced. `stamp` becomes what the new file is like.
[[nodiscard]] std::int64_t save_tileset(const Tileset& tileset, const std::string& path,
                                        File_Stamp* stamp = nullptr);

enum class Load_Outcome { loaded, not_a_tileset };

struct Loaded_Tileset {
    Load_Outcome outcome = Load_Outcome::not_a_tileset;
    // It is null unless loaded. The first tile, if any, is the current one.
    std::unique_ptr<Tileset> tileset;
    File_Stamp stamp = {};
    // How many bytes follow the last tile that the file tells of. They are no part of the set.
    std::int64_t surplus = 0;
};

// Returns the first tile of such a file; null where there is none, or the file is no tileset or too short.
[[nodiscard]] std::unique_ptr<Tile> load_first_tile(const std::string& path);

// Whether the file can be loaded: it begins as a set does, and no tile that it tells of is missing.
[[nodiscard]] bool is_whole_tileset(const std::string& path);
// A file that cannot be opened is no tileset; one that ends before its last tile does is a fatal error.
[[nodiscard]] Loaded_Tileset load_tileset(const std::string& path);

} // namespace quadrelle
