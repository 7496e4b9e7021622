#pragma once

// The kinds of stroke that a pointer makes on the canvas.

#include "app/command.h"

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

// The stroke of a tool's command; rectangles and circles come in one kind a shape type.
[[nodiscard]] constexpr Canvas_Action canvas_action_of(Command command, Shape_Type shape) {
    const auto of_shape = [shape](Canvas_Action outline) {
        return static_cast<Canvas_Action>(static_cast<std::int32_t>(outline) +
                                          static_cast<std::int32_t>(shape));
    };
    switch (command) {
    case Command::line: return Canvas_Action::line;
    case Command::rectangle: return of_shape(Canvas_Action::rectangle_outline);
    case Command::circle: return of_shape(Canvas_Action::ellipse_outline);
    case Command::stamp_brush: return Canvas_Action::stamp_brush;
    case Command::pen: return Canvas_Action::pen;
    case Command::colorize_pen: return Canvas_Action::colorize_pen;
    case Command::lightness_pen: return Canvas_Action::lightness_pen;
    case Command::dropper: return Canvas_Action::dropper;
    case Command::flood_fill: return Canvas_Action::flood_fill;
    case Command::smudge_brush: return Canvas_Action::smudge_brush;
    case Command::scroll: return Canvas_Action::scroll;
    case Command::free_rotate: return Canvas_Action::free_rotate;
    case Command::brush_selector: return Canvas_Action::brush_selector;
    case Command::circle_selector: return Canvas_Action::circle_selector;
    case Command::rectangle_selector: return Canvas_Action::rectangle_selector;
    case Command::wand_selector: return Canvas_Action::wand_selector;
    case Command::work_selection: return Canvas_Action::work_selection;
    default: return Canvas_Action::none;
    }
}

} // namespace quadrelle
