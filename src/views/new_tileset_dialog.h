#pragma once

// Asks for the tile size of a new tileset.

#include "base/geometry.h"

#include <memory>
#include <optional>

namespace quadrelle {

struct New_Tileset_Choice {
    Size size;
    bool keep_and_resize = false; // the current tileset gets the size instead

    bool operator==(const New_Tileset_Choice&) const = default;
};

class New_Tileset_Dialog {
public:
    // Returns nothing when it was given up.
    [[nodiscard]] std::optional<New_Tileset_Choice> run() const;
};

extern std::unique_ptr<New_Tileset_Dialog> new_tileset_dialog;

} // namespace quadrelle
