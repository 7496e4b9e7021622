#include "canvas/drag_shape.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quadrelle {

namespace {

int with_sign_of(int sign, int length) {
    return sign < 0 ? -length : length;
}

Tile_Point square(Tile_Point offset) {
    const int edge = std::max(std::abs(offset.x), std::abs(offset.y));
    return {with_sign_of(offset.x, edge), with_sign_of(offset.y, edge)};
}

// The nearest point on one of the eight directions.
Tile_Point in_direction(Tile_Point offset) {
    const double half_step = std::tan(std::acos(-1.0) / 8);
    const int x = std::abs(offset.x);
    const int y = std::abs(offset.y);
    if (y < x * half_step) {
        return {offset.x, 0};
    }
    if (x < y * half_step) {
        return {0, offset.y};
    }
    const int both = (x + y + 1) / 2;
    return {with_sign_of(offset.x, both), with_sign_of(offset.y, both)};
}

} // namespace

Drag shaped(const Drag& drag, Drag_Shape shape, const Stroke_Moment& moment) {
    Tile_Point offset{drag.to.x - drag.from.x, drag.to.y - drag.from.y};
    if (moment.is_shift_held && shape != Drag_Shape::free) {
        offset = shape == Drag_Shape::line ? in_direction(offset) : square(offset);
    }
    Drag result{drag.from, {drag.from.x + offset.x, drag.from.y + offset.y}};
    if (moment.is_control_held && (shape == Drag_Shape::line || shape == Drag_Shape::box)) {
        result.from = {drag.from.x - offset.x, drag.from.y - offset.y};
    }
    return result;
}

} // namespace quadrelle
