#pragma once

// The line that all strokes, lines and outlines follow.

#include "base/geometry.h"
#include "color/color.h"
#include "tools/drawing_target.h"

#include <cmath>
#include <cstdint>

namespace quadrelle {

struct Line_Steps {
    float x = 0.0F;
    float y = 0.0F;
    float step_x = 0.0F;
    float step_y = 0.0F;
    int count = 0;
};

// Tells where a line starts and how it steps. What lies more than a million pixels away is cut off first; a
// line that is wholly there has no points.
[[nodiscard]] Line_Steps line_steps(Tile_Point from, Tile_Point to);

// Calls visit(Tile_Point) on one point for each step of the longer axis, both ends included. The arithmetic
// is deliberately of single precision and rounds half away from zero: any other gives other pixels.
template <typename Visit>
void walk_line(Tile_Point from, Tile_Point to, Visit visit) {
    Line_Steps line = line_steps(from, to);
    for (; line.count > 0; --line.count) {
        visit(Tile_Point{static_cast<int>(std::round(line.x)), static_cast<int>(std::round(line.y))});
        line.x += line.step_x;
        line.y += line.step_y;
    }
}

void draw_line(Drawing_Target& target, Tile_Point from, Tile_Point to, Color color);

// Returns the distance between the ends, truncated, plus one.
[[nodiscard]] std::int64_t line_length(Tile_Point from, Tile_Point to);

} // namespace quadrelle
