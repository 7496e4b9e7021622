#pragma once

// What surrounds the saving of a document, so that nothing of anybody is lost by it.

#include "tileset/document_file.h"

#include <string>

namespace quadrelle {

// False where somebody else has written to the document's file since it was loaded or saved, and the user
// does not want that overwritten. Where he chooses a file to save to, its dialog asks about that.
[[nodiscard]] bool confirms_changes_of_others(const Tileset_Document& document);

struct Saving {
    Save_Outcome outcome = Save_Outcome::failed;
    bool is_previous_kept = false; // also where there was nothing before
};
// Keeps what the file held before, and the history beside it. Where that is more than the document has,
// nothing is saved without it.
[[nodiscard]] Saving save_keeping_previous(Tileset_Document& document);

} // namespace quadrelle
