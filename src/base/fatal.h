#pragma once

// The end of the program on an error that it cannot work with.

#include <functional>
#include <string_view>

namespace quadrelle {

// Prints "Error: MESSAGE!" to standard output and ends the process with exit status 1.
[[noreturn]] void fatal(std::string_view message);
// Does the same with "Error: MESSAGE DETAIL!".
[[noreturn]] void fatal(std::string_view message, std::string_view detail);

// What is still done before the program ends in the midst of something, here or where the window system's
// library ends it; nothing by default. It must need nothing that could be broken.
void set_last_act(std::function<void()> act);
void run_last_act();

} // namespace quadrelle
