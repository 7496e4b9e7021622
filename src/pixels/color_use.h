#pragma once

// Which colours pictures have, and how often.

#include "color/color.h"

#include <cstddef>
#include <span>
#include <vector>

namespace quadrelle {

class Tile;

struct Color_Use {
    Color color;
    std::size_t count = 0; // of pixels

    bool operator==(const Color_Use&) const = default;
};

// Of pictures with more colours, those that come later are not counted: they would take any memory.
constexpr std::size_t most_counted_colors = 65536;

// The most used one comes first; of two that are used as often, the one that comes first in the pictures. All
// pixels that are fully transparent have one colour.
[[nodiscard]] std::vector<Color_Use> colors_by_use(std::span<const Tile* const> pictures);

} // namespace quadrelle
