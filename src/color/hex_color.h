#pragma once

// Colours as hexadecimal text, as people type and exchange them.

#include "color/color.h"

#include <optional>
#include <string>
#include <string_view>

namespace quadrelle {

// Returns a text like "#61127c", with two more digits for the alpha of a colour that is not opaque.
[[nodiscard]] std::string hex_text(Color color);

// The colour, or what is wrong with the text.
struct Hex_Reading {
    std::optional<Color> color;
    std::string refusal = {};
};

// Takes 6 digits, 8 with alpha, or 3 that each stand for two, with or without "#" and blanks around them.
// Without alpha the colour is opaque.
[[nodiscard]] Hex_Reading read_hex(std::string_view text);

} // namespace quadrelle
