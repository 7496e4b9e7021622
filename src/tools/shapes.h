#pragma once

// Rectangles and ellipses, and the figures shown while they are dragged. What lies outside the tile is cut
// off, however far.

#include "base/geometry.h"
#include "color/color.h"
#include "tools/canvas_action.h"
#include "tools/drawing_target.h"

namespace quadrelle {

struct Shape_Colors {
    Color outline;
    Color inside;
};

// Radii go from a centre to the middle of a side, in pixels: 0 is a line. Negative ones count as positive.
struct Radii {
    int x = 0;
    int y = 0;

    bool operator==(const Radii&) const = default;
};

// The corners come in any order and are included.
void draw_rectangle(Drawing_Target& target, Tile_Point from, Tile_Point to, Color color);
void draw_filled_rectangle(Drawing_Target& target, Tile_Point from, Tile_Point to, Shape_Colors colors);

void draw_ellipse(Drawing_Target& target, Tile_Point centre, Radii radii, Color color);
void draw_filled_ellipse(Drawing_Target& target, Tile_Point centre, Radii radii, Shape_Colors colors);

// The colours of the pressed button and of the other one.
struct Button_Colors {
    Color own;
    Color other;
};

// Draws the line, rectangle or ellipse of the action, dragged from the first point to the second; nothing for
// every other action. An ellipse is dragged from its centre.
void draw_shape(Drawing_Target& target, Canvas_Action action, Tile_Point from, Tile_Point to,
                Button_Colors colors);

// Both saturate at the largest int.
[[nodiscard]] Size rectangle_size(Tile_Point from, Tile_Point to);
[[nodiscard]] Radii ellipse_radii(Tile_Point centre, Tile_Point to);

} // namespace quadrelle
