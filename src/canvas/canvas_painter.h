#pragma once

// Composes the picture of the canvas viewport in memory: one coloured square a tile pixel over a
// checkerboard, with a grid. Knows neither window nor events.

#include "base/geometry.h"
#include "canvas/paste_handles.h"
#include "color/color.h"
#include "color/pixel_rows.h"
#include "pixels/tile.h"
#include "selection/floating_paste.h"
#include "selection/selection.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace quadrelle {

// Drawn over a cell, along which it is as long as the cell; pixels with alpha 0 are left out.
struct Cell_Marker {
    Size size;
    std::vector<Color> pixels; // row by row
};

// The pictures along the sides of cells: the first one in cells of even place within their checker square,
// the second one in those of odd place.
struct Cell_Edges {
    std::array<Cell_Marker, 2> horizontal;
    std::array<Cell_Marker, 2> vertical;
};

// Around the selected cells runs a line.
struct Selection_Outline {
    const Selection* selection = nullptr;
    const Cell_Edges* edges = nullptr;
};

struct Canvas_Picture {
    const Tile* tile = nullptr; // null shows nothing but the surround
    int pixel_size = 1;         // edge of one cell
    Point origin;               // of the tile's first cell, from the viewport's top-left corner
    int grid_intensity = 0;
    Size checker{1, 1}; // in tile pixels
    Color surround;
    // What lies around the tile, which is in its middle; null for nothing.
    const Tile* around = nullptr;
    // What is not selected is dimmed; null for no selection.
    const Selection* selection = nullptr;
    // Shown as it would look when plotted; null for none.
    const Floating_Paste* paste = nullptr;
    // Drawn over each other in this order.
    std::vector<Selection_Outline> outlines;
    // In the cells of the column, and of the row, that begins the second half of the tile; null for none.
    const Cell_Marker* column_marker = nullptr;
    const Cell_Marker* row_marker = nullptr;
    // Over all else; none for no handles.
    std::optional<Paste_Handles> handles = {};
};

// Returns the colour of the grid lines along a pixel, as translucent as the pixel itself.
[[nodiscard]] Color grid_color(Color pixel, int intensity);

class Canvas_Painter {
public:
    // Writes every pixel of `target`, all opaque.
    void paint(const Canvas_Picture& picture, const Pixel_Rows& target);

private:
    struct Range {
        int first = 0;
        int end = 0;
    };
    struct Cell_Colors {
        Color cell;
        Color grid;
    };
    void paint_row(const Canvas_Picture& picture, Range columns, int row, const Pixel_Rows& target);
    static void paint_around(const Canvas_Picture& picture, const Pixel_Rows& target);
    void compose_lines(const Canvas_Picture& picture, Range columns, int row);
    static void paint_outline(const Canvas_Picture& picture, const Selection_Outline& outline, Range columns,
                              Range rows, const Pixel_Rows& target);
    static void paint_markers(const Canvas_Picture& picture, Range columns, Range rows,
                              const Pixel_Rows& target);
    [[nodiscard]] static Color pixel_shown(const Floating_Paste& paste, Tile_Point pixel, Color below);
    void fill_cell(Range extent, Cell_Colors colors, bool shows_right_line);

    // One line of pixels through the cells of a row, and one along their bottom.
    std::vector<Color> cell_line_;
    std::vector<Color> grid_line_;
};

} // namespace quadrelle
