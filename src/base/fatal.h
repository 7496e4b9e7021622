#pragma once

// The end of the program on an error that it cannot work with.

#include <string_view>

namespace quadrelle {

// Prints "Error: MESSAGE!" to standard output and ends the process with exit status 1.
[[noreturn]] void fatal(std::string_view message);
// Does the same with "Error: MESSAGE DETAIL!".
[[noreturn]] void fatal(std::string_view message, std::string_view detail);

} // namespace quadrelle
