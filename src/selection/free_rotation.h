#pragma once

// Turning a picture by any angle, crisp: no colour comes out that did not go in.

#include "base/geometry.h"
#include "pixels/tile.h"

namespace quadrelle {

// Returns the picture turned clockwise about its middle, in that size, with the same middle. What
// turns out of it is lost, what turns in is transparent. Turns by 90 degrees are exact where the picture
// keeps its middle on a pixel or between pixels.
[[nodiscard]] Tile turned(const Tile& picture, int degrees, Size size);

// Returns the size that it takes to lose nothing of a picture of that size, with its middle on a pixel or
// between pixels as before.
[[nodiscard]] Size size_turned(Size size, int degrees);

// Returns the same turn in 0 to 359 degrees.
[[nodiscard]] int normalized_degrees(int degrees);
// Returns the degrees, 0 to 359 clockwise, from the direction of `from`, seen from the middle, to that of
// `to`.
[[nodiscard]] int turn_between(Tile_Position from, Tile_Position to, Tile_Position middle);

} // namespace quadrelle
