#pragma once

// A small box in which the user types a number.

#include "base/geometry.h"

#include <optional>

namespace quadrelle {

// Asks for a number from `low` to `high` in a box near `position`, inside of the window; `value` is shown
// until something is typed. None after Escape, a click outside of the box, or the window's close button.
[[nodiscard]] std::optional<int> ask_number(Point position, int value, int low, int high);

} // namespace quadrelle
