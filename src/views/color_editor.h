#pragma once

// The dialog in which one colour is edited: its numbers, and a list of named colours. Knows neither
// tools nor tiles.

#include "color/color.h"

#include <optional>
#include <string_view>

namespace quadrelle {

// Edits the colour in a dialog beside the canvas, which says what it is the colour of. Returns none when it
// is to stay as it was.
[[nodiscard]] std::optional<Color> edit_color(std::string_view what, Color color);

} // namespace quadrelle
