#pragma once

// The kinds of stroke that a pointer makes on the canvas.

#include <cstdint>

namespace quadrelle {

enum class Canvas_Action : std::int32_t {
    none = -1,
    line,
    rectangle_outline,
    rectangle_filled,
    rectangle_filled_outline,
    ellipse_outline,
    ellipse_filled,
    ellipse_filled_outline,
    stamp_brush,
    pen,
    colorize_pen,
    lightness_pen,
    dropper,
    flood_fill,
    smudge_brush,
    scroll,
    free_rotate,
    brush_selector,
    circle_selector,
    rectangle_selector,
    wand_selector,
    work_selection,
    count
};

static_assert(static_cast<int>(Canvas_Action::count) == 21);

enum class Shape_Type : std::int32_t { outline, filled, filled_outline };

} // namespace quadrelle
