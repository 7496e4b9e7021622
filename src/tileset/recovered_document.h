#pragma once

// A document made of what the journal tells of it.

#include "tileset/document.h"
#include "tileset/journal_record.h"

#include <memory>

namespace quadrelle {

// It is changed and not saved, under the name that it had. Tiles that the journal only names are taken from
// the set's file; where that has them no more they are black.
[[nodiscard]] std::unique_ptr<Tileset_Document> recovered_document(const Journal_Set& set);

} // namespace quadrelle
