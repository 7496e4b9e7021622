#include "base/fatal.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace quadrelle {

namespace {

// Ends at once: nothing is unwound and no destructor writes a file.
[[noreturn]] void print_and_exit(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
    std::_Exit(1);
}

} // namespace

void fatal(std::string_view message) {
    print_and_exit("Error: " + std::string(message) + "!\n");
}

void fatal(std::string_view message, std::string_view detail) {
    print_and_exit("Error: " + std::string(message) + " " + std::string(detail) + "!\n");
}

} // namespace quadrelle
