#include "tileset/document_file.h"

#include "base/atomic_file.h"
#include "base/platform_files.h"
#include "map/map_file.h"
#include "tileset/tileset_file.h"

#include <utility>

namespace quadrelle {

std::unique_ptr<Tileset_Document> load_document(const std::string& path) {
    Loaded_Tileset loaded = load_tileset(path);
    if (loaded.outcome != Load_Outcome::loaded) {
        return nullptr;
    }
    auto document = std::make_unique<Tileset_Document>(path, std::move(*loaded.tileset));
    document->set_file(path);
    Read_Map read = read_map(map_path(path));
    if (read.map) {
        document->set_map(*std::move(read.map));
        document->set_map_file(map_path(path));
    }
    return document;
}

Save_Outcome save_document(Tileset_Document& document) {
    const std::string& path = document.file_name();
    if (document.map() == nullptr) {
        return save_tileset(document.tileset(), path) >= 0 ? Save_Outcome::saved : Save_Outcome::failed;
    }
    Atomic_File map_file(map_path(path));
    const bool is_written = map_file.write(encode_map(document.map()->indexed_map()));
    if (save_tileset(document.tileset(), path) < 0) {
        return Save_Outcome::failed;
    }
    if (!is_written || !map_file.commit()) {
        return Save_Outcome::map_failed;
    }
    document.set_map_file(map_path(path));
    return Save_Outcome::saved;
}

bool replaces_strange_map(const Tileset_Document& document, const std::string& path) {
    const std::string map_file = map_path(path);
    return document.map() != nullptr && map_file != document.map_file() &&
           path_kind(map_file) != Path_Kind::nothing;
}

bool has_unreadable_map(const Tileset_Document& document) {
    return document.is_named() && document.map() == nullptr &&
           read_map(map_path(document.file_name())).state == Map_File_State::unreadable;
}

} // namespace quadrelle
