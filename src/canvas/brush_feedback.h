#pragma once

// Shows on the canvas where a press acts: what the brush is about to paint and its outline, or the corner of
// cells that is taken. Knows no tool.

#include "base/geometry.h"
#include "color/color.h"
#include "color/pixel_rows.h"
#include "selection/selection.h"
#include "tools/brush.h"

#include <optional>

namespace quadrelle {

// Corners of the brush's top left cell in pixels of the picture; none shows nothing. Borrows the brush.
struct Brush_Feedback {
    const Brush* brush = nullptr;
    std::optional<Point> outline = {};
    std::optional<Point> preview = {};
    // So many cells beside it begins a straight line of brushes, which ends with it: of previews, or else of
    // outlines.
    std::optional<Tile_Point> line_start = {};
    // Instead of the brush's own colours.
    std::optional<Color> color = {};
    // The tile in pixels of the picture: beside it nothing is previewed.
    Rectangle tile = {};
    // Only what is selected is painted; null for all of the tile.
    const Selection* selection = nullptr;
    // In tile pixels: what is painted hides all of the tile, so that the board shows through it.
    Size checker = {1, 1};
    // What lies there is cut out of a wallpaper of brushes, and this pixel of it comes to lie on the corner.
    Tile_Point wallpaper = {};
    // Marked by a cross of the lines that meet there.
    std::optional<Point> taken_corner = {};
};

// Returns the same for a picture that begins there.
[[nodiscard]] Brush_Feedback seen_from(Point start, Brush_Feedback feedback);

// Returns the smallest rectangle around all that it changes; empty when it shows nothing.
[[nodiscard]] Rectangle feedback_area(const Brush_Feedback& feedback, int pixel_size);

// `pixel_size` is the edge of a cell. What lies outside the picture is left out.
void paint_brush_feedback(const Brush_Feedback& feedback, int pixel_size, const Pixel_Rows& target);

} // namespace quadrelle
