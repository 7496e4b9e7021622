#pragma once

// Brings a copy of pixels up to date and tells what was not.

#include "base/geometry.h"
#include "color/color.h"

#include <span>

namespace quadrelle {

// Makes the copy the same as `pixels`. Both stand row by row and have that size. Returns the smallest
// rectangle around what was different.
[[nodiscard]] Rectangle update_copy(std::span<const Color> pixels, Size size, std::span<Color> copy);

} // namespace quadrelle
