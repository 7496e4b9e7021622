#pragma once

// Scaling and turning what floats: always from the pixels as they were taken, however it was shaped before,
// so that nothing is lost on the way and what is turned back is as it was.

#include "base/geometry.h"
#include "pixels/turn_and_mirror.h"
#include "selection/floating_paste.h"

namespace quadrelle {

enum class Corner { top_left, top_right, bottom_left, bottom_right };

// Returns how it is shaped: not at all, if it never was.
[[nodiscard]] Paste_Shape shape_of(const Floating_Paste& paste);

// Returns it turned clockwise by so many degrees in all, as large as it has to be to lose nothing; the middle
// stays where it was.
[[nodiscard]] Floating_Paste turned(const Floating_Paste& paste, int degrees);
// Returns it so many times as wide and high, in all, as it was taken; that corner of it stays where it was.
// Factors go from 1 to those that make as large a picture as may be.
[[nodiscard]] Floating_Paste scaled(const Floating_Paste& paste, Factors factors, Corner fixed);
// Returns it turned by a quarter or mirrored, which loses nothing either.
[[nodiscard]] Floating_Paste placed(const Floating_Paste& paste, const Placement& placement);

// Returns the factors that bring the corner opposite to the fixed one about as far as it was pulled, in
// pixels of the tile.
[[nodiscard]] Factors factors_for(const Floating_Paste& paste, Corner fixed, Tile_Position pulled);

} // namespace quadrelle
