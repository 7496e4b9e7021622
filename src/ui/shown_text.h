#pragma once

// Texts from outside, such as file names, brought into what the fonts can show and into the room there is.

#include "screen/font_table.h"

#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

// Returns the characters of a UTF-8 text. A byte that belongs to no character is one by itself.
[[nodiscard]] std::vector<std::string> characters_of(std::string_view text);

// Returns what is drawn for a character: itself, or where the fonts have no letter for it the nearest one,
// such as that without its accent, or "?".
[[nodiscard]] char shown_letter(std::string_view character);
[[nodiscard]] std::string shown_text(std::string_view text);

enum class Left_Out { start, middle };

// Returns the shown text, with "..." for what has no room in that width.
[[nodiscard]] std::string fitted_text(Font font, std::string_view text, int width, Left_Out left_out);

} // namespace quadrelle
