#include "app/hover.h"

#include "canvas/canvas_view.h"
#include "panes/toolbox.h"
#include "screen/cursor.h"
#include "screen/events.h"
#include "selection/paste_shape.h"
#include "tools/options.h"
#include "ui/window_layout.h"

#include <optional>

namespace quadrelle {

namespace {

bool is_over_tile(const Canvas_View& canvas, Point point) {
    return window_layout::canvas.contains(point) && canvas.tile() != nullptr;
}

} // namespace

void show_hover(Canvas_View& canvas, const Pointer_State& pointer) {
    const Point point = pointer.point();
    const Hover hover{point, Mouse_Button::none, is_shift_held()};
    canvas.set_hover(is_over_tile(canvas, point) ? std::optional(hover) : std::nullopt);
    const bool is_replaced = options->is_ticked(Option::hide_or_show_cursor) &&
                             canvas.shows_brush(toolbox->state(), canvas_settings(*options));
    set_cursor(is_replaced ? Cursor::hidden : Cursor::shown);
}

void hide_hover(Canvas_View& canvas) {
    canvas.set_hover(std::nullopt);
    set_cursor(Cursor::shown);
}

void show_shape(const Canvas_View& canvas) {
    const Work_Area& work = canvas.work_area();
    const bool is_shown = canvas.shows_paste(toolbox->state());
    Tool_Figures& figures = toolbox->figures();
    if (toolbox->current_tool() == Tool::selection) {
        figures.size = is_shown ? work.paste()->picture->size() : Size{};
        figures.degrees = is_shown ? shape_of(*work.paste()).degrees : 0;
    } else if (toolbox->current_tool() == Tool::rotate && canvas.tile() != nullptr) {
        figures.degrees = is_shown ? shape_of(*work.paste()).degrees : work.degrees_turned(*canvas.tile());
    }
}

void show_pixel_under(const Canvas_View& canvas, const Pointer_State& pointer) {
    if (!is_over_tile(canvas, pointer.point())) {
        return;
    }
    const Tile_Point pixel = canvas.tile_point(pointer.point());
    toolbox->figures().location = pixel;
    if (!canvas.tile()->is_outside(pixel.x, pixel.y)) {
        toolbox->figures().dropper_color = canvas.seen_pixel(pixel, toolbox->state());
    }
}

} // namespace quadrelle
