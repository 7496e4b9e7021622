#pragma once

// A document's way into its file and out of it, with the map that lies beside it.

#include "tileset/document.h"

#include <memory>
#include <string>

namespace quadrelle {

// What became of the map beside a set that was loaded.
enum class Found_Map {
    none,
    whole,
    other_tiles, // than it was laid out with: it is shown as far as they are there
    strange,     // nothing of it fits: it is left alone
    unreadable,
};

struct Loaded_Document {
    std::unique_ptr<Tileset_Document> document; // null where the file is no tileset
    Found_Map map = Found_Map::none;
    int emptied = 0; // places of the map whose tile is gone
};

// Whatever is wrong with the map, or where there is none, the tileset is loaded.
[[nodiscard]] Loaded_Document load_document(const std::string& path);

enum class Save_Outcome {
    saved,
    failed,
    map_refused, // nothing is saved, because the map could not be
    map_failed,  // the tiles are saved
};

// Writes the tileset into the document's file, and the map beside it where there is one; that of a map which
// was taken away goes. Neither takes the place of the old file before both could be written.
[[nodiscard]] Save_Outcome save_document(Tileset_Document& document);

// Whether saving to that file would replace what is no map that the document was loaded with or saved to.
[[nodiscard]] bool replaces_strange_map(const Tileset_Document& document, const std::string& path);

// Whether a map of another set lies beside that file, for which a set without one would be taken.
[[nodiscard]] bool lies_beside_strange_map(const Tileset_Document& document, const std::string& path);

// Whether there is a file where the map would be that is none. It is left alone unless the user says
// otherwise.
[[nodiscard]] bool has_unreadable_map(const Tileset_Document& document);

} // namespace quadrelle
