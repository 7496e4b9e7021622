#pragma once

// The checkerboard below what is translucent, drawn on the window.

#include "base/geometry.h"
#include "screen/texture.h"

#include <memory>

namespace quadrelle {

// Draws square by square: for what is drawn seldom or small.
void draw_checkerboard(const Rectangle& area);
// Returns a picture for what is drawn in every frame.
[[nodiscard]] std::unique_ptr<Texture> make_checkerboard(Size size);

} // namespace quadrelle
