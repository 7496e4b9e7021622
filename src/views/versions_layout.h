#pragma once

// Where the parts of the versions dialog lie, for every tile size. Draws nothing.

#include "base/geometry.h"
#include "tileset/tile_versions.h"

#include <array>
#include <optional>

namespace quadrelle {

// The rectangles are in window pixels.
struct Versions_Layout {
    Rectangle dialog; // with its title
    Rectangle big_view;
    std::array<Rectangle, Tile_Versions::slot_count> slots;
    std::array<Rectangle, Tile_Versions::slot_count> labels; // below the slots
    Rectangle store_button;
    Rectangle take_button;

    // A label belongs to its slot, so that slots of tiny tiles can be hit too.
    [[nodiscard]] std::optional<int> slot_at(Point point) const;
};

// The tile must have pixels. The big view magnifies three times and the slots twice, as far as the window has
// room for that.
[[nodiscard]] Versions_Layout versions_layout(Size tile, Size window);

} // namespace quadrelle
