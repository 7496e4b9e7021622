#pragma once

// What each kind of stroke does to the tile between two positions of the pointer. Takes its options from the
// toolbox and its colours from the tool colours; knows no loop.

#include "app/input.h"
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
    const Tile* history = nullptr; // what the pen's history mode draws from
};

enum class Segment_Outcome { drawn, color_picked, nothing };

using Draw_Segment = Segment_Outcome (*)(Drawing_Target& target, const Stroke_Segment& segment);

// How the strokes differ.
struct Stroke_Row {
    Canvas_Action action;
    bool keeps_start;        // every segment begins where the button was pressed, on the tile as it was then
    bool draws_while_moving; // or at the press only
    bool keeps_cursor;       // the system's cursor shows during the stroke
    Draw_Segment draw_segment;
    // Asked before drawing; then the tool goes on while its button is held, also where the pointer stays.
    // Null for a tool that is always ready.
    bool (*is_due)(Mouse_Button button) = nullptr;
};

// Null for an action that no stroke runs.
[[nodiscard]] const Stroke_Row* find_stroke(Canvas_Action action);

} // namespace quadrelle
