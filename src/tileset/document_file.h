#pragma once

// A document's way into its file and out of it, with the map that lies beside it.

#include "tileset/document.h"

#include <memory>
#include <string>

namespace quadrelle {

// Null where the file is no tileset. Whatever is wrong with the map, or where there is none, the tileset is
// loaded.
[[nodiscard]] std::unique_ptr<Tileset_Document> load_document(const std::string& path);

enum class Save_Outcome { saved, failed, map_failed };

// Writes the tileset into the document's file, and the map beside it where there is one. What failed is
// unchanged. Neither takes the place of the old file before both could be written.
[[nodiscard]] Save_Outcome save_document(Tileset_Document& document);

// Whether saving to that file would replace what is no map that the document was loaded with or saved to.
[[nodiscard]] bool replaces_strange_map(const Tileset_Document& document, const std::string& path);

// Whether there is a file where the map would be that is none. It is left alone unless the user says
// otherwise.
[[nodiscard]] bool has_unreadable_map(const Tileset_Document& document);

} // namespace quadrelle
