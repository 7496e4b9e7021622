#include "base/fatal.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace quadrelle {

namespace {

// Ends at once: nothing is unwound and no destructor writes a file.
[[noreturn]] void print_and_exit(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
    run_last_act();
    std::_Exit(1);
}

std::function<void()>& last_act() {
    static std::function<void()> the_act;
    return the_act;
}

} // namespace

void set_last_act(std::function<void()> act) {
    last_act() = std::move(act);
}

// Once: it may end in the same way.
void run_last_act() {
    if (const std::function<void()> act = std::exchange(last_act(), {})) {
        act();
    }
}

void fatal(std::string_view message) {
    print_and_exit("Error: " + std::string(message) + "!\n");
}

void fatal(std::string_view message, std::string_view detail) {
    print_and_exit("Error: " + std::string(message) + " " + std::string(detail) + "!\n");
}

} // namespace quadrelle
