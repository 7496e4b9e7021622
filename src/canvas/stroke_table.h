#pragma once

// What each kind of stroke does to the tile between two positions of the pointer. Takes its options from the
// toolbox and its colours from the tool colours; knows no loop.

#include "base/input.h"
#include "selection/work_area.h"
#include "tools/canvas_action.h"
#include "tools/drawing_target.h"
#include "tools/pens.h"

namespace quadrelle {

struct Stroke_Segment {
    Canvas_Action action = Canvas_Action::none;
    Tile_Point from;
    Tile_Point to;
    Segment_Start start = Segment_Start::included;
    Mouse_Button button = Mouse_Button::left;
    Tile_Point pointer;            // the pixel under the pointer, wherever the brush around it lies
    Work_Area* work = nullptr;     // what is selected and floats on the canvas
    const Tile* history = nullptr; // what the pen's history mode draws from
};

enum class Segment_Outcome { drawn, color_picked, nothing };

using Finish_Stroke = void (*)(Drawing_Target& target, const Stroke_Segment& segment);
using Draw_Segment = Segment_Outcome (*)(Drawing_Target& target, const Stroke_Segment& segment);

// How the strokes differ.
struct Stroke_Row {
    Canvas_Action action;
    // Every segment begins where the button was pressed, on the tile and the work area as they were then.
    bool keeps_start;
    bool draws_while_moving; // or at the press only
    bool keeps_cursor;       // the system's cursor shows during the stroke
    bool snaps_to_corners;   // its points are corners of cells, not pixels
    Draw_Segment draw_segment;
    // When the button is released, with the segment from the press to there; null for nothing more to do.
    Finish_Stroke finish = nullptr;
    // Asked before drawing; then the tool goes on while its button is held, also where the pointer stays.
    // Null for a tool that is always ready.
    bool (*is_due)(Mouse_Button button) = nullptr;
};

// Null for an action that no stroke runs.
[[nodiscard]] const Stroke_Row* find_stroke(Canvas_Action action);

} // namespace quadrelle
