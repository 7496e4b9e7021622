#include "canvas/stroke_table.h"

#include "canvas/paste_in_view.h"
#include "canvas/selection_strokes.h"
#include "tools/flood_fill.h"
#include "tools/line.h"

#include <algorithm>
#include <array>

namespace quadrelle {

namespace {

// Outside the tile there is no colour to pick; what floats in view hides that of the tile.
Stroke_Findings pick(const Drawing_Target& target, const Stroke_Segment& segment, Mouse_Button side) {
    Stroke_Findings found = segment.no_findings();
    if (target.contains(segment.pointer)) {
        const Floating_Paste* const paste = paste_in_view(segment.work, segment.tools);
        found.figures.dropper_color = seen_pixel(target.tile(), segment.pointer, paste);
        found.picked = Picked_Color{side, found.figures.dropper_color};
    }
    return found;
}

Stroke_Findings pick_for_button(Drawing_Target& target, const Stroke_Segment& segment) {
    return pick(target, segment, segment.button);
}

Stroke_Findings draw_with(Drawing_Target& target, const Stroke_Segment& segment, Pen_Mode mode,
                          const Ink& ink) {
    draw_segment(target, {segment.tools.brush(), mode, ink}, segment.from, segment.to, segment.start);
    return segment.no_findings();
}

// The right button as the pens' option says: it draws from the history, or picks the left colour.
Stroke_Findings draw_or_pick(Drawing_Target& target, const Stroke_Segment& segment, Pen_Mode mode, Ink ink) {
    const Right_Button_Mode right_button = segment.tools.options.right_button_mode;
    if (segment.button == Mouse_Button::right && right_button == Right_Button_Mode::dropper) {
        return pick(target, segment, Mouse_Button::left);
    }
    if (segment.button == Mouse_Button::right && right_button == Right_Button_Mode::history) {
        ink.operation = Pixel_Operation::history;
        ink.history = segment.history;
    }
    ink.color = segment.tools.colors.of(segment.button);
    return draw_with(target, segment, mode, ink);
}

Stroke_Findings draw_pen(Drawing_Target& target, const Stroke_Segment& segment) {
    if (segment.tools.is_erasing) {
        Ink ink;
        ink.color = segment.tools.brush_color(segment.button);
        return draw_with(target, segment, segment.tools.pen_mode(), ink);
    }
    return draw_or_pick(target, segment, segment.tools.pen_mode(), {});
}

Stroke_Findings stamp(Drawing_Target& target, const Stroke_Segment& segment) {
    Ink ink;
    ink.color = segment.tools.brush_color(segment.button);
    return draw_with(target, segment, segment.tools.pen_mode(), ink);
}

Stroke_Findings colorize(Drawing_Target& target, const Stroke_Segment& segment) {
    Ink ink;
    ink.operation = Pixel_Operation::colorize;
    ink.colorize_type = segment.tools.options.colorize_type;
    return draw_or_pick(target, segment, Pen_Mode::brush, ink);
}

bool is_lightness_step_due(const Tool_State& tools, Mouse_Button button, std::int64_t time) {
    return tools.lightness_step(time, button).has_value();
}

Stroke_Findings change_lightness(Drawing_Target& target, const Stroke_Segment& segment) {
    const Tool_Options& options = segment.tools.options;
    Ink ink;
    ink.operation =
        lightness_operation(options.button_order, segment.button).value_or(Pixel_Operation::lighten);
    ink.lightness_mode = options.lightness_mode;
    Stroke_Findings found = draw_with(target, segment, Pen_Mode::brush, ink);
    found.lightness_step = segment.moment.time;
    return found;
}

Stroke_Findings smudge_along(Drawing_Target& target, const Stroke_Segment& segment) {
    smudge_segment(target, segment.tools.brush(), segment.from, segment.to);
    return segment.no_findings();
}

Stroke_Findings fill(Drawing_Target& target, const Stroke_Segment& segment) {
    const Tool_State& tools = segment.tools;
    if (tools.options.fill_mode == Fill_Mode::solid) {
        flood_fill(target, segment.to, tools.colors.of(segment.button));
    } else {
        flood_fill_with_brush(target, segment.to, tools.brush(), tools.brush_color(segment.button));
    }
    return segment.no_findings();
}

Stroke_Findings draw_figure(Drawing_Target& target, const Stroke_Segment& segment) {
    const Tool_Colors& colors = segment.tools.colors;
    const Mouse_Button other =
        segment.button == Mouse_Button::left ? Mouse_Button::right : Mouse_Button::left;
    draw_shape(target, segment.action, segment.from, segment.to,
               {colors.of(segment.button), colors.of(other)});
    Stroke_Findings found = segment.no_findings();
    found.figures.length = static_cast<int>(line_length(segment.from, segment.to));
    found.figures.size = rectangle_size(segment.from, segment.to);
    found.figures.radii = ellipse_radii(segment.from, segment.to);
    return found;
}

constexpr bool keeps_start = true;
constexpr bool while_moving = true;
constexpr bool keeps_cursor = true;
constexpr auto pixels = Stroke_Points::pixels;
constexpr auto corners = Stroke_Points::corners;
constexpr auto cells = Stroke_Points::cells;
constexpr bool joins = true;
constexpr bool _ = false;
using enum Drag_Shape;

// clang-format off
constexpr std::array stroke_table = std::to_array<Stroke_Row>({
    {Canvas_Action::line,                     keeps_start, while_moving, _,            pixels,  _,     line,    draw_figure},
    {Canvas_Action::rectangle_outline,        keeps_start, while_moving, _,            pixels,  _,     box,     draw_figure},
    {Canvas_Action::rectangle_filled,         keeps_start, while_moving, _,            pixels,  _,     box,     draw_figure},
    {Canvas_Action::rectangle_filled_outline, keeps_start, while_moving, _,            pixels,  _,     box,     draw_figure},
    {Canvas_Action::ellipse_outline,          keeps_start, while_moving, _,            pixels,  _,     ellipse, draw_figure},
    {Canvas_Action::ellipse_filled,           keeps_start, while_moving, _,            pixels,  _,     ellipse, draw_figure},
    {Canvas_Action::ellipse_filled_outline,   keeps_start, while_moving, _,            pixels,  _,     ellipse, draw_figure},
    {Canvas_Action::stamp_brush,              _,           while_moving, _,            pixels,  joins, free,    stamp},
    {Canvas_Action::pen,                      _,           while_moving, _,            pixels,  joins, free,    draw_pen},
    {Canvas_Action::colorize_pen,             _,           while_moving, _,            pixels,  joins, free,    colorize},
    {Canvas_Action::lightness_pen,            _,           while_moving, _,            pixels,  joins, free,    change_lightness, nullptr, is_lightness_step_due},
    {Canvas_Action::dropper,                  _,           while_moving, keeps_cursor, pixels,  _,     free,    pick_for_button},
    {Canvas_Action::flood_fill,               _,           _,            keeps_cursor, pixels,  _,     free,    fill},
    {Canvas_Action::smudge_brush,             _,           while_moving, _,            pixels,  joins, free,    smudge_along},
    {Canvas_Action::rectangle_selector,       keeps_start, while_moving, _,            corners, _,     box,     mark_rectangle, finish_area},
    {Canvas_Action::circle_selector,          keeps_start, while_moving, _,            pixels,  _,     ellipse, mark_circle, finish_area},
    {Canvas_Action::brush_selector,           _,           while_moving, _,            pixels,  joins, free,    mark_with_brush, finish_marking},
    {Canvas_Action::wand_selector,            _,           _,            keeps_cursor, pixels,  _,     free,    mark_with_wand, finish_marking},
    {Canvas_Action::work_selection,           keeps_start, while_moving, keeps_cursor, cells,   _,     free,    move_paste, finish_moving},
    {Canvas_Action::free_rotate,              keeps_start, while_moving, keeps_cursor, cells,   _,     free,    rotate},
    {Canvas_Action::scroll,                   keeps_start, while_moving, keeps_cursor, cells,   _,     free,    scroll},
});
// clang-format on

} // namespace

const Stroke_Row& copy_stroke() {
    static constexpr Stroke_Row row{
        Canvas_Action::work_selection, keeps_start, while_moving, keeps_cursor, cells, _, free, move_copy};
    return row;
}

const Stroke_Row& outline_stroke() {
    static constexpr Stroke_Row row{
        Canvas_Action::work_selection, keeps_start, while_moving, keeps_cursor, cells, _, free, move_outline};
    return row;
}

const Stroke_Row* find_stroke(Canvas_Action action) {
    const auto row = std::ranges::find(stroke_table, action, &Stroke_Row::action);
    return row == stroke_table.end() ? nullptr : &*row;
}

} // namespace quadrelle
