#pragma once

// A named list of colours.

#include "color/color.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quadrelle {

// Of a palette that is kept or comes from a file.
constexpr std::size_t most_palette_colors = 256;

struct Palette {
    std::string name;
    std::vector<Color> colors;

    // All entries are opaque black.
    Palette(std::string palette_name, int count)
        : name(std::move(palette_name)), colors(static_cast<std::size_t>(count)) {}
    Palette(std::string palette_name, std::vector<Color> palette_colors)
        : name(std::move(palette_name)), colors(std::move(palette_colors)) {}

    bool operator==(const Palette&) const = default;
};

} // namespace quadrelle
