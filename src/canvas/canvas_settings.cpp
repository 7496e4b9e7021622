#include "canvas/canvas_settings.h"

#include "tools/options.h"

#include <algorithm>

namespace quadrelle {

Canvas_Settings canvas_settings(const Options& values) {
    return {values.value(Option::grid_intensity),
            {std::max(values.value(Option::alpha_grid_width), 1),
             std::max(values.value(Option::alpha_grid_height), 1)},
            values.choice<Brush_Outline>(Option::precise_brush),
            values.is_ticked(Option::blocky_precise_brush),
            values.is_ticked(Option::show_shadow_brush)};
}

namespace {

bool fills_with_brush(const Tool_State& tools) {
    return tools.fills_with_brush() && !tools.is_picking;
}

} // namespace

bool shows_brush_outline(const Tool_State& tools, const Canvas_Settings& settings) {
    const bool leaves_out_brush = settings.brush_outline == Brush_Outline::not_of_one_pixel &&
                                  tools.brush().size() == Size{1, 1} && !tools.is_erasing;
    return (tools.uses_brush() || fills_with_brush(tools)) && settings.brush_outline != Brush_Outline::off &&
           !leaves_out_brush;
}

// Nothing for brushes that change the colour which is there, nor where the pen paints from the history.
bool shows_brush_preview(const Tool_State& tools, const Canvas_Settings& settings, Mouse_Button button) {
    if (fills_with_brush(tools)) {
        return settings.has_brush_preview;
    }
    const Brush_Owner owner = tools.brush().owner();
    const bool has_colors = owner == Brush_Owner::pen || owner == Brush_Owner::stamp_brush;
    const bool paints_otherwise = button == Mouse_Button::right && tools.tool == Tool::pen &&
                                  !tools.is_erasing &&
                                  tools.options.right_button_mode != Right_Button_Mode::color;
    return tools.uses_brush() && has_colors && !paints_otherwise && settings.has_brush_preview;
}

Size brush_reach(const Tool_State& tools, const Canvas_Settings& settings) {
    const Size size = tools.brush().size();
    const bool is_centred = tools.uses_brush() && shows_brush_outline(tools, settings);
    return is_centred ? Size{size.width - 1, size.height - 1} : Size{};
}

Point pointer_offset(const Tool_State& tools, const Canvas_Settings& settings, int pixel_size) {
    const Size reach = brush_reach(tools, settings);
    return {reach.width * pixel_size / 2, reach.height * pixel_size / 2};
}

} // namespace quadrelle
