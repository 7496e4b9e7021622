#pragma once

// How Shift and Ctrl shape what is drawn from the press of the button to the pointer.

#include "canvas/stroke_segment.h"

#include <cstdint>

namespace quadrelle {

// What is dragged: freely, a line, a rectangle from corner to corner, or an ellipse from its centre.
enum class Drag_Shape : std::int32_t { free, line, box, ellipse };

struct Drag {
    Tile_Point from;
    Tile_Point to;
};

// Shift keeps lines to steps of 45 degrees, rectangles to squares and ellipses to circles. With Ctrl the
// press is the middle, as for an ellipse it always is.
[[nodiscard]] Drag shaped(const Drag& drag, Drag_Shape shape, const Stroke_Moment& moment);

} // namespace quadrelle
