#pragma once

// "Export as .png": asks what is exported, and how it is laid out.

#include "tileset/sheet_export.h"

#include <optional>

namespace quadrelle {

// The tiles of each of the three; those of the selection are one, or none. They must have pixels.
using Sheet_Tiles = std::vector<const Tile*>;
struct Sheet_Sources {
    Sheet_Tiles whole_set;
    Sheet_Tiles current_tile;
    Sheet_Tiles selection;

    [[nodiscard]] const Sheet_Tiles& of(Exported what) const;
};

// Returns why such a picture cannot be made, as a sentence, or null where it can.
[[nodiscard]] const char* fault_of_sheet(const Sheet_Sources& sources, const Sheet_Choice& choice);
// Starts with the choice given. Returns nothing when it was given up.
[[nodiscard]] std::optional<Sheet_Choice> ask_for_sheet(const Sheet_Sources& sources,
                                                        const Sheet_Choice& start);

} // namespace quadrelle
