#pragma once

// How the user wants the canvas to look, and what of the brush shows on it then.

#include "base/geometry.h"
#include "tools/tool_state.h"

#include <cstdint>

namespace quadrelle {

class Options;

enum class Brush_Outline : std::int32_t { off, on, not_of_one_pixel };

struct Canvas_Settings {
    int grid_intensity = 64;
    Size checker{6, 6};
    Brush_Outline brush_outline = Brush_Outline::not_of_one_pixel;
    bool is_outline_blocky = false;
    bool has_brush_preview = true;
};

[[nodiscard]] Canvas_Settings canvas_settings(const Options& values);

[[nodiscard]] bool shows_brush_outline(const Tool_State& tools, const Canvas_Settings& settings);
// While that button is held or none is.
[[nodiscard]] bool shows_brush_preview(const Tool_State& tools, const Canvas_Settings& settings,
                                       Mouse_Button button = Mouse_Button::none);
// How far the brush reaches beyond the pointer, in half pixels: not at all unless it is centred on that.
[[nodiscard]] Size brush_reach(const Tool_State& tools, const Canvas_Settings& settings);
// From the brush's corner to the pointer in window pixels: half the brush while it is centred on the pointer.
[[nodiscard]] Point pointer_offset(const Tool_State& tools, const Canvas_Settings& settings, int pixel_size);

} // namespace quadrelle
