#pragma once

// What ended the program, in a file for a person who saw no output: beside "data", in the folder of the
// start.

#include <string>
#include <string_view>

namespace quadrelle {

inline constexpr std::string_view error_note_name = "quadrelle-error.txt";

// Before this nothing is written. The folder is to be named from the root on: the process may leave it.
void keep_error_note_in(const std::string& folder);
// Nothing happens where that cannot be written.
void write_error_note(std::string_view text);
// Returns what was written there, and removes it. Empty where there is nothing, or it cannot be removed, as
// it would be told again and again.
[[nodiscard]] std::string take_error_note();

} // namespace quadrelle
