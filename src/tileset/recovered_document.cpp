#include "tileset/recovered_document.h"

#include "base/platform_files.h"
#include "map/map_file.h"
#include "tileset/journal_map.h"
#include "tileset/tileset_file.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quadrelle {

namespace {

std::unique_ptr<Tileset> file_of(const Journal_Set& set) {
    const bool needs_file =
        std::ranges::any_of(set.tiles, [](const Journal_Tile& tile) { return !tile.picture; });
    if (!needs_file || !set.is_named || !is_whole_tileset(set.name)) {
        return nullptr;
    }
    std::unique_ptr<Tileset> file = load_tileset(set.name).tileset;
    return file && file->tile_size() == set.tile_size ? std::move(file) : nullptr;
}

Tileset tileset_of(const Journal_Set& set) {
    const std::unique_ptr<Tileset> file = file_of(set);
    Tileset tileset(set.tile_size);
    for (const Journal_Tile& kept : set.tiles) {
        auto tile = std::make_unique<Tile>(set.tile_size.width, set.tile_size.height);
        if (kept.picture) {
            kept.picture->copy_to(*tile);
        } else if (file && kept.index_in_file < file->count()) {
            file->tile_at(kept.index_in_file).copy_to(*tile);
        }
        tileset.append_loaded(std::move(tile));
    }
    return tileset;
}

// A file that is no map of this set is still not replaced without a question. Older journals do not tell
// which one is.
void give_files(Tileset_Document& document, const Journal_Set& set) {
    document.set_file(set.name);
    const std::string map_file = map_path(set.name);
    if (set.files.set) {
        document.set_own_file({*set.files.set, set.files.surplus});
    }
    if (set.files.map || (!set.files.set && set.map && read_map(map_file).map)) {
        document.set_map_file(map_file, set.files.map);
    }
}

} // namespace

std::unique_ptr<Tileset_Document> recovered_document(const Journal_Set& set) {
    auto document = std::make_unique<Tileset_Document>(set.name, tileset_of(set));
    if (set.is_named) {
        give_files(*document, set);
    }
    std::optional<Tile_Map> map =
        set.map ? unpacked_map(*set.map, document->tileset().count()) : std::nullopt;
    if (map) {
        document->set_map(*std::move(map));
    }
    document->history().reset(document->tileset());
    document->mark_changed();
    return document;
}

} // namespace quadrelle
