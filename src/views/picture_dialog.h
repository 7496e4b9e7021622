#pragma once

// "New tileset from picture": asks how a picture is divided into tiles.

#include "tileset/picture_tiles.h"

#include <optional>

namespace quadrelle {

class Picture_Dialog {
public:
    // Borrows the picture, which must have pixels.
    explicit Picture_Dialog(const Tile& picture) : picture_(picture) {}

    // Returns the set, which has a tile, or nothing when it was given up.
    [[nodiscard]] std::optional<Tileset> run() const;

private:
    const Tile& picture_;
};

} // namespace quadrelle
