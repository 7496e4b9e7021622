#include "canvas/stroke_table.h"

#include "canvas/selection_strokes.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"
#include "tools/flood_fill.h"
#include "tools/lightness_pace.h"
#include "tools/line.h"
#include "tools/shapes.h"

#include <SDL3/SDL_timer.h>

#include <algorithm>
#include <array>

namespace quadrelle {

namespace {

Right_Button_Mode right_button_mode() {
    return toolbox->state().options.right_button_mode;
}

// Outside the tile there is no colour to pick.
Segment_Outcome pick(Drawing_Target& target, const Stroke_Segment& segment) {
    if (!target.contains(segment.pointer)) {
        return Segment_Outcome::nothing;
    }
    tool_colors->set_color(segment.button, target.get(segment.pointer));
    toolbox->figures().dropper_color = target.get(segment.pointer);
    return Segment_Outcome::color_picked;
}

void draw_with(Drawing_Target& target, const Stroke_Segment& segment, Pen_Mode mode, const Ink& ink) {
    draw_segment(target, {toolbox->brush(), mode, ink}, segment.from, segment.to, segment.start);
}

// The right button as the pens' option says: it draws from the history, or picks the left colour.
Segment_Outcome draw_or_pick(Drawing_Target& target, Stroke_Segment segment, Pen_Mode mode, Ink ink) {
    if (segment.button == Mouse_Button::right && right_button_mode() == Right_Button_Mode::dropper) {
        segment.button = Mouse_Button::left;
        return pick(target, segment);
    }
    if (segment.button == Mouse_Button::right && right_button_mode() == Right_Button_Mode::history) {
        ink.operation = Pixel_Operation::history;
        ink.history = segment.history;
    }
    ink.color = tool_colors->color(segment.button);
    draw_with(target, segment, mode, ink);
    return Segment_Outcome::drawn;
}

Segment_Outcome draw_pen(Drawing_Target& target, const Stroke_Segment& segment) {
    return draw_or_pick(target, segment, toolbox->state().pen_mode(), {});
}

Segment_Outcome stamp(Drawing_Target& target, const Stroke_Segment& segment) {
    Ink ink;
    ink.color = toolbox->state().brush_color(segment.button);
    draw_with(target, segment, toolbox->state().pen_mode(), ink);
    return Segment_Outcome::drawn;
}

Segment_Outcome colorize(Drawing_Target& target, const Stroke_Segment& segment) {
    Ink ink;
    ink.operation = Pixel_Operation::colorize;
    ink.colorize_type = toolbox->state().options.colorize_type;
    return draw_or_pick(target, segment, Pen_Mode::brush, ink);
}

bool is_lightness_step_due(Mouse_Button button) {
    return toolbox->lightness_step(static_cast<std::int64_t>(SDL_GetTicks()), button).has_value();
}

Segment_Outcome change_lightness(Drawing_Target& target, const Stroke_Segment& segment) {
    const auto order = toolbox->state().options.button_order;
    Ink ink;
    ink.operation = lightness_operation(order, segment.button).value_or(Pixel_Operation::lighten);
    ink.lightness_mode = toolbox->state().options.lightness_mode;
    draw_with(target, segment, Pen_Mode::brush, ink);
    return Segment_Outcome::drawn;
}

Segment_Outcome smudge_along(Drawing_Target& target, const Stroke_Segment& segment) {
    smudge_segment(target, toolbox->brush(), segment.from, segment.to);
    return Segment_Outcome::drawn;
}

Segment_Outcome fill(Drawing_Target& target, const Stroke_Segment& segment) {
    if (toolbox->state().options.fill_mode == Fill_Mode::solid) {
        flood_fill(target, segment.to, tool_colors->color(segment.button));
    } else {
        flood_fill_with_brush(target, segment.to, toolbox->brush(),
                              toolbox->state().brush_color(segment.button));
    }
    return Segment_Outcome::drawn;
}

Segment_Outcome draw_figure(Drawing_Target& target, const Stroke_Segment& segment) {
    const Mouse_Button other =
        segment.button == Mouse_Button::left ? Mouse_Button::right : Mouse_Button::left;
    draw_shape(target, segment.action, segment.from, segment.to,
               {tool_colors->color(segment.button), tool_colors->color(other)});
    const Radii radii = ellipse_radii(segment.from, segment.to);
    toolbox->figures().length = static_cast<int>(line_length(segment.from, segment.to));
    toolbox->figures().size = rectangle_size(segment.from, segment.to);
    toolbox->figures().radii = radii;
    return Segment_Outcome::drawn;
}

// clang-format off
constexpr std::array stroke_table = std::to_array<Stroke_Row>({
    //                                      keeps start, draws while moving, keeps cursor, snaps to corners
    {Canvas_Action::line,                      true,  true,  false, false, draw_figure},
    {Canvas_Action::rectangle_outline,         true,  true,  false, false, draw_figure},
    {Canvas_Action::rectangle_filled,          true,  true,  false, false, draw_figure},
    {Canvas_Action::rectangle_filled_outline,  true,  true,  false, false, draw_figure},
    {Canvas_Action::ellipse_outline,           true,  true,  false, false, draw_figure},
    {Canvas_Action::ellipse_filled,            true,  true,  false, false, draw_figure},
    {Canvas_Action::ellipse_filled_outline,    true,  true,  false, false, draw_figure},
    {Canvas_Action::stamp_brush,               false, true,  false, false, stamp},
    {Canvas_Action::pen,                       false, true,  false, false, draw_pen},
    {Canvas_Action::colorize_pen,              false, true,  false, false, colorize},
    {Canvas_Action::lightness_pen,             false, true,  false, false, change_lightness, nullptr, is_lightness_step_due},
    {Canvas_Action::dropper,                   false, true,  true,  false, pick},
    {Canvas_Action::flood_fill,                false, false, true,  false, fill},
    {Canvas_Action::smudge_brush,              false, true,  false, false, smudge_along},
    {Canvas_Action::rectangle_selector,        true,  true,  false, true,  mark_rectangle, finish_area},
    {Canvas_Action::circle_selector,           true,  true,  false, false, mark_circle, finish_area},
    {Canvas_Action::brush_selector,            false, true,  false, false, mark_with_brush, finish_marking},
    {Canvas_Action::wand_selector,             false, false, true,  false, mark_with_wand, finish_marking},
    {Canvas_Action::work_selection,            true,  true,  true,  false, move_paste, finish_moving},
    {Canvas_Action::free_rotate,               true,  true,  true,  false, rotate},
    {Canvas_Action::scroll,                    true,  true,  true,  false, scroll},
});
// clang-format on

} // namespace

const Stroke_Row* find_stroke(Canvas_Action action) {
    const auto row = std::ranges::find(stroke_table, action, &Stroke_Row::action);
    return row == stroke_table.end() ? nullptr : &*row;
}

} // namespace quadrelle
