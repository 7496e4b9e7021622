#pragma once

// The history of a set that was saved, in a file of its own: it comes back with the set, and without the file
// nothing is missing but that.

#include "base/file_stamp.h"
#include "base/kept_files.h"
#include "tileset/undo_history.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quadrelle {

class Tileset_Document;

// The states, and which of them is the one that the file of the set has.
struct Kept_History {
    std::vector<Undo_Entry> entries;
    int position = 0;
};

// The stamp is that of the set's file.
[[nodiscard]] std::vector<std::uint8_t> encode_history(const Undo_History& history, const File_Stamp& saved);
// None where the bytes are damaged, or belong to another file or set than these.
[[nodiscard]] std::optional<Kept_History> decode_history(std::span<const std::uint8_t> bytes,
                                                         const File_Stamp& saved, const Tileset& tileset);

// Where these files are.
[[nodiscard]] Kept_Files kept_histories();
// The document was just saved. It is no loss when its history cannot be written.
void keep_history(const Tileset_Document& document);
// The document was just loaded. Answers whether its history is back.
bool bring_history_back(Tileset_Document& document);

} // namespace quadrelle
