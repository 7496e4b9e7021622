#pragma once

// What each kind of stroke does to the tile between two positions of the pointer. Each draws on what it is
// given and answers with what it found.

#include "canvas/drag_shape.h"
#include "canvas/stroke_segment.h"
#include "tools/drawing_target.h"

#include <cstdint>

namespace quadrelle {

using Draw_Segment = Stroke_Findings (*)(Drawing_Target& target, const Stroke_Segment& segment);
using Finish_Stroke = void (*)(Drawing_Target& target, const Stroke_Segment& segment);
using Is_Due = bool (*)(const Tool_State& tools, Mouse_Button button, std::int64_t time);

// What the points of a stroke are.
enum class Stroke_Points {
    pixels,  // that the tool acts on; just left of and above the tile they are its first ones
    corners, // of cells, the nearest ones
    cells,   // everywhere, so that what is dragged follows the pointer there too
};

// How the strokes differ.
struct Stroke_Row {
    Canvas_Action action;
    // Every segment begins where the button was pressed, on the tile and the work area as they were then.
    bool keeps_start;
    bool draws_while_moving; // or at the press only
    bool keeps_cursor;       // the system's cursor shows during the stroke
    Stroke_Points points;
    bool joins_strokes; // with Shift it begins where the last stroke on the tile ended
    Drag_Shape shape;   // what Shift and Ctrl make of it
    Draw_Segment draw_segment;
    // When the button is released, with the segment from the press to there; null for nothing more to do.
    Finish_Stroke finish = nullptr;
    // Asked before drawing; then the tool goes on while its button is held, also where the pointer stays.
    // Null for a tool that is always ready.
    Is_Due is_due = nullptr;
};

// With a modifier a drag inside the selection moves a copy of it, or only where is selected.
[[nodiscard]] const Stroke_Row& copy_stroke();
[[nodiscard]] const Stroke_Row& outline_stroke();

// Null for an action that no stroke runs.
[[nodiscard]] const Stroke_Row* find_stroke(Canvas_Action action);

} // namespace quadrelle
