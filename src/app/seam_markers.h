#pragma once

// The pictures that mark where the edges of a shifted tile lie, read from the sheet when first needed.

#include "app/canvas_painter.h"
#include "tileset/sprite_table.h"

#include <array>

namespace quadrelle {

class Seam_Markers {
public:
    // Without a screen there is nothing to read and nothing is marked.
    void load();
    // The line down the left edge of a column's cells, and the one along the top of a row's; null before
    // `load`. Larger cells get a broader one.
    [[nodiscard]] const Cell_Marker* along_column(int pixel_size) const;
    [[nodiscard]] const Cell_Marker* along_row(int pixel_size) const;

private:
    struct Pair {
        Cell_Marker column;
        Cell_Marker row;
    };
    [[nodiscard]] const Pair& pair_for(int pixel_size) const;

    bool is_loaded_ = false;
    Pair narrow_;
    Pair broad_;
};

} // namespace quadrelle
