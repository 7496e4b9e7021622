#pragma once

// The dialog in which one colour is edited: its numbers, and a list of named colours. Knows neither tools nor
// tiles.

#include "color/color.h"

#include <optional>

namespace quadrelle {

// What else the user wants of the dialog.
enum class Color_Request { none, adjust_tile };

struct Color_Choice {
    // None when the colour is to stay as it was.
    std::optional<Color> color;
    Color_Request request = Color_Request::none;
};

// Edits the colour in a dialog beside the canvas.
[[nodiscard]] Color_Choice edit_color(Color color);

} // namespace quadrelle
