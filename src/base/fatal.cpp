#include "base/fatal.h"

#include "base/error_note.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "base/table.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace quadrelle {

namespace {

struct Remedy_Row {
    Remedy id;
    std::string_view text; // the file's path follows
};

constexpr std::array<Remedy_Row, 3> remedies{{
    {Remedy::put_copy, "This file is not whole. Put a copy of it in its place, or leave it alone:"},
    {Remedy::remove, "This file is not whole. Delete it, and the program goes on without what was in it:"},
    {Remedy::unpack_again, "The program needs this as it came with it. Unpack it there once more:"},
}};
static_assert(rows_follow_their_ids(remedies));

std::string advice(const Faulty_File& file) {
    return std::string(remedies.at(static_cast<std::size_t>(file.remedy)).text) + "\n" +
           resolved_path(current_directory(), file.path) + "\n";
}

// Ends at once: nothing is unwound and no destructor writes a file.
[[noreturn]] void print_and_exit(const std::string& line, const std::string& advice = {}) {
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
    std::fputs((line + advice).c_str(), stderr);
    write_error_note(line + advice);
    run_last_act();
    std::_Exit(1);
}

std::string line_of(std::string_view message) {
    return "Error: " + std::string(message) + "!\n";
}

std::string line_of(std::string_view message, std::string_view detail) {
    return line_of(std::string(message) + " " + std::string(detail));
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
    print_and_exit(line_of(message));
}

void fatal(std::string_view message, const Faulty_File& file) {
    print_and_exit(line_of(message), advice(file));
}

void fatal(std::string_view message, std::string_view detail) {
    print_and_exit(line_of(message, detail));
}

void fatal(std::string_view message, std::string_view detail, const Faulty_File& file) {
    print_and_exit(line_of(message, detail), advice(file));
}

} // namespace quadrelle
