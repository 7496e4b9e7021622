#pragma once

// Turning a picture by any angle, crisp: no colour comes out that did not go in.

#include "base/geometry.h"
#include "pixels/tile.h"
#include "selection/floating_paste.h"

namespace quadrelle {

// Returns the picture turned clockwise about its middle, in that size, with the same middle. What
// turns out of it is lost, what turns in is transparent. Turns by 90 degrees are exact where the picture
// keeps its middle on a pixel or between pixels.
[[nodiscard]] Tile turned(const Tile& picture, int degrees, Size size);

// Returns the paste turned, as large as it has to be to lose nothing; the middle stays where it was.
[[nodiscard]] Floating_Paste turned(const Floating_Paste& paste, int degrees);

// Returns the degrees, 0 to 359 clockwise, from the direction of `from`, seen from the middle, to that of
// `to`. The middle is given in half pixels.
[[nodiscard]] int turn_between(Tile_Point from, Tile_Point to, Tile_Point middle_in_halves);

} // namespace quadrelle
