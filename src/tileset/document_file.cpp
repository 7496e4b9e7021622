#include "tileset/document_file.h"

#include "base/atomic_file.h"
#include "base/fingerprint.h"
#include "base/platform_files.h"
#include "map/map_file.h"
#include "map/map_fit.h"
#include "tileset/tileset_file.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace quadrelle {

namespace {

// The document takes the map as far as it fits.
void find_map(Loaded_Document& loaded, const std::string& path) {
    Read_Map read = read_map(path);
    if (!read.map) {
        loaded.map = read.state == Map_File_State::missing ? Found_Map::none : Found_Map::unreadable;
        return;
    }
    Tileset_Document& document = *loaded.document;
    Fitted_Map map = fitted(*std::move(read.map), sums_of(document.tileset().tiles()));
    if (!map.map) {
        loaded.map = Found_Map::strange;
        return;
    }
    loaded.map = map.has_other_tiles ? Found_Map::other_tiles : Found_Map::whole;
    loaded.emptied = map.emptied;
    document.set_map(*std::move(map.map));
    // What has lost places takes the place of the whole one only when the user says so.
    if (map.emptied == 0) {
        document.set_map_file(path, read.stamp);
    }
    if (map.has_other_tiles) {
        document.mark_changed();
    }
}

Save_Outcome save_tiles(Tileset_Document& document) {
    File_Stamp stamp;
    if (save_tileset(document.tileset(), document.file_name(), &stamp) < 0) {
        return Save_Outcome::failed;
    }
    document.set_own_file({stamp});
    return Save_Outcome::saved;
}

Save_Outcome save_without_map(Tileset_Document& document) {
    const Save_Outcome outcome = save_tiles(document);
    if (outcome == Save_Outcome::saved && document.map_file() == map_path(document.file_name())) {
        remove_file(document.map_file());
        document.set_map_file("");
    }
    return outcome;
}

} // namespace

Loaded_Document load_document(const std::string& path) {
    Loaded_Document result;
    Loaded_Tileset loaded = load_tileset(path);
    if (loaded.outcome == Load_Outcome::loaded) {
        result.document = std::make_unique<Tileset_Document>(path, std::move(*loaded.tileset));
        result.document->set_file(path);
        result.document->set_own_file({loaded.stamp, loaded.surplus});
        find_map(result, map_path(path));
    }
    return result;
}

Save_Outcome save_document(Tileset_Document& document) {
    if (document.map() == nullptr) {
        return save_without_map(document);
    }
    const std::string path = map_path(document.file_name());
    const std::vector<std::uint8_t> bytes =
        encode_map(document.map()->indexed_map(), sums_of(document.tileset().tiles()));
    Atomic_File map_file(path);
    if (!map_file.write(bytes)) {
        return Save_Outcome::map_refused;
    }
    if (save_tiles(document) != Save_Outcome::saved) {
        return Save_Outcome::failed;
    }
    if (!map_file.commit()) {
        return Save_Outcome::map_failed;
    }
    document.set_map_file(path, File_Stamp{file_state(path).value_or(File_State{}), fingerprint_of(bytes)});
    return Save_Outcome::saved;
}

bool replaces_strange_map(const Tileset_Document& document, const std::string& path) {
    const std::string map_file = map_path(path);
    return document.map() != nullptr && map_file != document.map_file() &&
           path_kind(map_file) != Path_Kind::nothing;
}

bool lies_beside_strange_map(const Tileset_Document& document, const std::string& path) {
    const std::string map_file = map_path(path);
    return document.map() == nullptr && map_file != document.map_file() &&
           read_map(map_file).state == Map_File_State::read;
}

bool has_unreadable_map(const Tileset_Document& document) {
    return document.is_named() && document.map() == nullptr &&
           read_map(map_path(document.file_name())).state == Map_File_State::unreadable;
}

} // namespace quadrelle
