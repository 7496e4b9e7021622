#pragma once

// A stroke on the canvas: the loop from the press of a button to its release.

#include "base/input.h"
#include "canvas/stroke.h"

#include <functional>

namespace quadrelle {

// Draws at the pointer and on, along its motions, which `pointer` follows, until a button is released or the
// window is closed, which ends the stroke only. Escape takes back what was drawn. `redraw` draws and presents
// the window. The canvas must show a tile.
[[nodiscard]] Stroke_Outcome run_stroke(Canvas_View& canvas, const Stroke_Row& row, const Stroke_Tools& tools,
                                        Pointer_State& pointer, const std::function<void()>& redraw);

} // namespace quadrelle
