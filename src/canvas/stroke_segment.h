#pragma once

// One step of a stroke: from where to where, with what, and when. Knows no widget, no clock and no loop.

#include "base/input.h"
#include "canvas/paste_handles.h"
#include "selection/work_area.h"
#include "tools/pens.h"
#include "tools/tool_state.h"

#include <cstdint>

namespace quadrelle {

// When an event came, and what was held then.
struct Stroke_Moment {
    std::int64_t time = 0; // milliseconds
    bool is_shift_held = false;
    bool is_control_held = false;
};

// What a drag took hold of, where, and to where it came.
struct Grip {
    Paste_Handle handle = Paste_Handle::none;
    Tile_Position from = {};
    Tile_Position to = {};
};

// Borrows the tools, what is selected and floats on the canvas, and the picture that the pen's history mode
// draws from, if there is one.
struct Stroke_Segment {
    const Tool_State& tools;
    Work_Area& work;
    const Tile* history = nullptr;
    Canvas_Action action = Canvas_Action::none;
    Mouse_Button button = Mouse_Button::left;
    Tile_Point from;
    Tile_Point to;
    Segment_Start start = Segment_Start::included;
    Tile_Point pointer; // the pixel under the pointer, wherever the brush around it lies
    Stroke_Moment moment;
    Grip grip = {};

    // The figures as they are.
    [[nodiscard]] Stroke_Findings no_findings() const { return {tools.figures}; }
};

} // namespace quadrelle
