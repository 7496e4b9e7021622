#pragma once

// The pictures that run along the edges of cells on the canvas: sprites, stretched to the length of a cell.

#include "canvas/canvas_painter.h"
#include "screen/sprite_table.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace quadrelle {

enum class Edge_Family : std::int32_t { seam, selection, candidate, paste, count };

class Edge_Pictures {
public:
    // Larger cells get a broader line. Null without a screen: then nothing is marked.
    [[nodiscard]] const Cell_Edges* of(Edge_Family family, int pixel_size);

private:
    struct Stretched {
        int pixel_size = 0;
        Cell_Edges edges;
    };
    // As they were asked for last.
    std::array<Stretched, static_cast<std::size_t>(Edge_Family::count)> families_;
};

} // namespace quadrelle
