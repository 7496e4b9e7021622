#pragma once

// What follows the pointer while no button is held: the brush and the cursor over the canvas, and the figures
// of the pixel under it.

#include "base/input.h"

namespace quadrelle {

class Canvas_View;

// Shows the brush at the pointer, and the cursor where the brush does not show.
void show_hover(Canvas_View& canvas, const Pointer_State& pointer);
// Shows the cursor alone, while a command runs, which may show a dialog over the canvas.
void hide_hover(Canvas_View& canvas);

// Let the toolbox say what is there, and how large what floats is and how far it, or the tile, was turned.
void show_pixel_under(const Canvas_View& canvas, const Pointer_State& pointer);
void show_shape(const Canvas_View& canvas);

} // namespace quadrelle
