#pragma once

// The end of the program on an error that it cannot work with.

#include <functional>
#include <string_view>

namespace quadrelle {

// What a person can do about a file.
enum class Remedy { put_copy, remove, unpack_again };
struct Faulty_File {
    std::string_view path; // as the process could open it
    Remedy remedy;
};

// Prints "Error: MESSAGE!" to standard output and ends the process with exit status 1. Standard error and the
// error note get that too, and what to do about the file, if it is one.
[[noreturn]] void fatal(std::string_view message);
[[noreturn]] void fatal(std::string_view message, const Faulty_File& file);
// Does the same with "Error: MESSAGE DETAIL!".
[[noreturn]] void fatal(std::string_view message, std::string_view detail);
[[noreturn]] void fatal(std::string_view message, std::string_view detail, const Faulty_File& file);

// What is still done before the program ends in the midst of something, here or where the window system's
// library ends it; nothing by default. It must need nothing that could be broken.
void set_last_act(std::function<void()> act);
void run_last_act();

} // namespace quadrelle
