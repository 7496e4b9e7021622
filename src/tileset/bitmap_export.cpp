#include "tileset/bitmap_export.h"

#include "base/block_file.h"
#include "pixels/picture_formats.h"

#include <algorithm>

namespace quadrelle {

Tile export_picture(const Tileset& tileset, const std::optional<Tile>& current) {
    const Size tile = tileset.tile_size();
    Tile picture(export_columns * tile.width, export_rows * tile.height);
    for (int i = 0; i < std::min(tileset.count(), exported_tiles); ++i) {
        const bool is_given = current && i == tileset.current_index();
        (is_given ? *current : tileset.tile_at(i))
            .paste_into(picture, i % export_columns * tile.width, i / export_columns * tile.height);
    }
    return picture;
}

bool save_bitmap(const Tile& picture, const std::string& path) {
    const std::vector<std::uint8_t> bytes = encode_bitmap(picture);
    return !bytes.empty() && write_file(path, bytes) >= 0;
}

} // namespace quadrelle
