#pragma once

// What the canvas showed last, so that only what another picture changes is painted again.

#include "base/geometry.h"
#include "canvas/canvas_painter.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quadrelle {

class Shown_Canvas {
public:
    // Returns the part of the viewport that looks different with that picture, which is remembered. What lies
    // over the picture in `feedback` is painted again each time, and where it was before. Both are in pixels
    // of the viewport, which is that large.
    [[nodiscard]] Rectangle change_to(const Canvas_Picture& picture, const Rectangle& feedback,
                                      Size viewport);

private:
    // What all cells depend on.
    struct Look {
        Size tile{-1, -1};
        int pixel_size = 0;
        Point origin;
        int grid_intensity = 0;
        Size checker;
        Color surround;
        std::uint64_t around = 0; // the version of that picture
        bool is_dimmed = false;
        std::vector<const Cell_Edges*> outlines;
        const Cell_Marker* column_marker = nullptr;
        const Cell_Marker* row_marker = nullptr;

        bool operator==(const Look&) const = default;
    };
    // A copy of a tile or a mask.
    struct Cells {
        std::uint64_t version = 0;
        Size size;
        std::vector<Color> pixels;

        // Returns the smallest rectangle around what is not the same there, and takes it over.
        [[nodiscard]] Rectangle change_to(const Tile& tile);
    };
    struct Paste {
        std::uint64_t version = 0;
        Rectangle area; // in cells

        bool operator==(const Paste&) const = default;
    };

    [[nodiscard]] static Look look_of(const Canvas_Picture& picture);
    [[nodiscard]] Rectangle changed_cells(const Canvas_Picture& picture);
    [[nodiscard]] Rectangle changed_paste(const Canvas_Picture& picture);
    // In pixels of the viewport.
    [[nodiscard]] Rectangle changed_handles(const Canvas_Picture& picture);

    Look look_;
    Cells tile_;
    std::vector<Cells> masks_; // of the outlines
    Paste paste_;
    std::optional<Paste_Handles> handles_;
    Rectangle feedback_;
};

} // namespace quadrelle
