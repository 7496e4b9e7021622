#pragma once

// The strokes that select, move what floats over the tile, or move the tile itself.

#include "canvas/stroke_segment.h"
#include "tools/drawing_target.h"

namespace quadrelle {

// What the stroke will select or deselect becomes the candidate of the work area.
Stroke_Findings mark_rectangle(Drawing_Target& target, const Stroke_Segment& segment);
Stroke_Findings mark_circle(Drawing_Target& target, const Stroke_Segment& segment);
Stroke_Findings mark_with_brush(Drawing_Target& target, const Stroke_Segment& segment);
Stroke_Findings mark_with_wand(Drawing_Target& target, const Stroke_Segment& segment);
// The left button adds the candidate, the right one takes it away; a left click without a drag beside the
// selection gives it up. `segment` leads from the press to the release.
void finish_area(Drawing_Target& target, const Stroke_Segment& segment);
void finish_marking(Drawing_Target& target, const Stroke_Segment& segment);

// Drags the paste, or the selected pixels, which then float; beside it the paste is plotted. A handle at a
// corner of the paste scales it by whole factors, with Shift by one both ways, and that above it turns it.
Stroke_Findings move_paste(Drawing_Target& target, const Stroke_Segment& segment);
void finish_moving(Drawing_Target& target, const Stroke_Segment& segment);

// Drags a copy of the selected pixels, which then floats. Of what floats already it leaves a copy behind.
Stroke_Findings move_copy(Drawing_Target& target, const Stroke_Segment& segment);
// Drags the selection and leaves the pixels; what leaves the tile is not selected any more.
Stroke_Findings move_outline(Drawing_Target& target, const Stroke_Segment& segment);

// Turns what floats, or lifts the selected pixels and turns them, or else turns the whole tile; always from
// what was there before it was turned first. To multiples of 15 degrees while Shift is held.
Stroke_Findings rotate(Drawing_Target& target, const Stroke_Segment& segment);

Stroke_Findings scroll(Drawing_Target& target, const Stroke_Segment& segment);

} // namespace quadrelle
