#include "base/atomic_file.h"

#include "base/platform_files.h"

#include <charconv>
#include <cstdio>
#include <set>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

constexpr std::string_view name_start = ".quadrelle-";
constexpr std::string_view name_end = ".tmp";

// No other running program has it. Short whatever the target is called, so that it fits wherever the target's
// name does.
std::string name_of_our_own(const std::string& folder, int attempt) {
    return folder + std::string(name_start) + std::to_string(process_number()) + "-" +
           std::to_string(attempt) + std::string(name_end);
}

// Returns the process that wrote a file of such a name, or 0 for the name of anything else.
unsigned long writer_of(std::string_view name) {
    if (!name.starts_with(name_start) || !name.ends_with(name_end)) {
        return 0;
    }
    unsigned long process = 0;
    std::from_chars(name.data() + name_start.size(), name.data() + name.size(), process);
    return process;
}

// A program that was killed while it wrote has left its file behind. Once for each folder is enough, and a
// large folder takes a while.
void remove_leftovers(const std::string& folder) {
    static std::set<std::string> seen;
    if (!seen.insert(folder.empty() ? current_directory() : folder).second) {
        return;
    }
    for (const std::string& name : folder_names(folder)) {
        if (const unsigned long process = writer_of(name); process != 0 && !is_running(process)) {
            remove_file(folder + name);
        }
    }
}

} // namespace

Atomic_File::Atomic_File(const std::string& path) : target_(resolve_links(path)) {
    if (!can_replace(target_)) {
        return;
    }
    constexpr int most_attempts = 20;
    for (int i = 0; i < most_attempts && !file_; ++i) {
        temporary_ = name_of_our_own(folder_part(target_), i);
        file_ = open_file(temporary_, File_Mode::create);
    }
    if (file_) {
        // Blocks come as large as they are to be written.
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    }
}

Atomic_File::~Atomic_File() {
    if (file_) {
        file_.reset();
        remove_file(temporary_);
    }
}

bool Atomic_File::write(std::span<const std::uint8_t> bytes) {
    failed_ = failed_ || !file_ || !write_bytes(file_.get(), bytes);
    return !failed_;
}

bool Atomic_File::commit(const Check& is_right) {
    if (failed_ || !file_) {
        return false;
    }
    take_permissions(file_.get(), target_);
    if (!flush_to_disk(file_.get())) {
        return false;
    }
    const bool done = close_file(std::exchange(file_, nullptr)) && (!is_right || is_right(temporary_)) &&
                      replace_file(temporary_, target_);
    if (!done) {
        remove_file(temporary_);
        return false;
    }
    const std::string folder = folder_part(target_);
    flush_folder(folder);
    remove_leftovers(folder);
    return true;
}

} // namespace quadrelle
