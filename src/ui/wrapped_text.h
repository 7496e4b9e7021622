#pragma once

// Text brought into lines of a given width.

#include "screen/font_table.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

// Breaks at "\r", at blanks, and inside of words that are wider than the width by themselves.
[[nodiscard]] std::vector<std::string> wrapped_text(Font font, std::string_view text, int width);

// Returns the first lines; the last one ends in a whole word and "..." where there were more.
[[nodiscard]] std::vector<std::string> first_lines(Font font, std::vector<std::string> lines,
                                                   std::size_t count, int width);

// Joins the lines with "\r" between them.
[[nodiscard]] std::string joined_lines(const std::vector<std::string>& lines);

} // namespace quadrelle
