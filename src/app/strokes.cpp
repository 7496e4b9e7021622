#include "app/strokes.h"

#include "tools/flood_fill.h"
#include "tools/lightness_pace.h"
#include "tools/line.h"
#include "tools/shapes.h"
#include "tools/tool_colors.h"
#include "tools/toolbox.h"

#include <SDL3/SDL_timer.h>

#include <algorithm>
#include <array>

namespace quadrelle {

namespace {

enum class Right_Button_Mode { color, history, dropper };

Right_Button_Mode right_button_mode() {
    return static_cast<Right_Button_Mode>(toolbox->value(Tool_Option::right_button_mode));
}

// Outside the tile there is no colour to pick.
Segment_Outcome pick(Drawing_Target& target, const Stroke_Segment& segment) {
    if (target.contains(segment.to)) {
        tool_colors->set_color(segment.button, target.get(segment.to));
        toolbox->options().set_dropper_color(target.get(segment.to));
    }
    return Segment_Outcome::drawn;
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
    return draw_or_pick(target, segment, static_cast<Pen_Mode>(toolbox->value(Tool_Option::pen_mode)), {});
}

Segment_Outcome colorize(Drawing_Target& target, const Stroke_Segment& segment) {
    Ink ink;
    ink.operation = Pixel_Operation::colorize;
    ink.colorize_type = static_cast<Colorize_Type>(toolbox->value(Tool_Option::colorize_type));
    return draw_or_pick(target, segment, Pen_Mode::brush, ink);
}

Lightness_Pace lightness_pace() {
    return {static_cast<Lightness_Speed>(toolbox->value(Tool_Option::speed)),
            static_cast<Size_Compensation>(toolbox->value(Tool_Option::size_compensation)),
            static_cast<Button_Order>(toolbox->value(Tool_Option::button_order))};
}

Segment_Outcome change_lightness(Drawing_Target& target, const Stroke_Segment& segment) {
    const auto now = static_cast<std::int64_t>(SDL_GetTicks());
    const auto operation = lightness_step(now, toolbox->last_step_time(), lightness_pace(),
                                          toolbox->brush().size().width, segment.button);
    if (!operation) {
        return Segment_Outcome::waiting;
    }
    toolbox->set_last_step_time(now);
    Ink ink;
    ink.operation = *operation;
    ink.lightness_mode = static_cast<Lightness_Mode>(toolbox->value(Tool_Option::lightness_mode));
    draw_with(target, segment, Pen_Mode::brush, ink);
    return Segment_Outcome::drawn;
}

Segment_Outcome smudge_along(Drawing_Target& target, const Stroke_Segment& segment) {
    smudge_segment(target, toolbox->brush(), segment.from, segment.to);
    return Segment_Outcome::drawn;
}

Segment_Outcome fill(Drawing_Target& target, const Stroke_Segment& segment) {
    const Color color = tool_colors->color(segment.button);
    if (toolbox->value(Tool_Option::fill_mode) == 0) {
        flood_fill(target, segment.to, color);
    } else {
        flood_fill_with_brush(target, segment.to, toolbox->brush(), color);
    }
    return Segment_Outcome::drawn;
}

Segment_Outcome draw_figure(Drawing_Target& target, const Stroke_Segment& segment) {
    const Mouse_Button other =
        segment.button == Mouse_Button::left ? Mouse_Button::right : Mouse_Button::left;
    draw_shape(target, segment.action, segment.from, segment.to,
               {tool_colors->color(segment.button), tool_colors->color(other)});
    const Radii radii = ellipse_radii(segment.from, segment.to);
    toolbox->options().set_length(static_cast<int>(line_length(segment.from, segment.to)));
    toolbox->options().set_size(rectangle_size(segment.from, segment.to));
    toolbox->options().set_radius({radii.x, radii.y});
    return Segment_Outcome::drawn;
}

// clang-format off
constexpr std::array stroke_table = std::to_array<Stroke_Row>({
    //                                      keeps start, draws while moving
    {Canvas_Action::line,                     true,  true,  draw_figure},
    {Canvas_Action::rectangle_outline,        true,  true,  draw_figure},
    {Canvas_Action::rectangle_filled,         true,  true,  draw_figure},
    {Canvas_Action::rectangle_filled_outline, true,  true,  draw_figure},
    {Canvas_Action::ellipse_outline,          true,  true,  draw_figure},
    {Canvas_Action::ellipse_filled,           true,  true,  draw_figure},
    {Canvas_Action::ellipse_filled_outline,   true,  true,  draw_figure},
    {Canvas_Action::pen,                      false, true,  draw_pen},
    {Canvas_Action::colorize_pen,             false, true,  colorize},
    {Canvas_Action::lightness_pen,            false, true,  change_lightness},
    {Canvas_Action::dropper,                  false, true,  pick},
    {Canvas_Action::flood_fill,               false, false, fill},
    {Canvas_Action::smudge_brush,             false, true,  smudge_along},
});
// clang-format on

} // namespace

const Stroke_Row* find_stroke(Canvas_Action action) {
    const auto row = std::ranges::find(stroke_table, action, &Stroke_Row::action);
    return row == stroke_table.end() ? nullptr : &*row;
}

} // namespace quadrelle
