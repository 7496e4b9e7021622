#include "base/atomic_file.h"

#include "base/platform_files.h"

#include <cstdio>
#include <utility>

namespace quadrelle {

namespace {

// No other running program has it. Short whatever the target is called, so that it fits wherever the target's
// name does.
std::string name_of_our_own(const std::string& folder, int attempt) {
    return folder + ".quadrelle-" + std::to_string(process_number()) + "-" + std::to_string(attempt) + ".tmp";
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

bool Atomic_File::commit() {
    if (failed_ || !file_) {
        return false;
    }
    take_permissions(file_.get(), target_);
    if (!flush_to_disk(file_.get())) {
        return false;
    }
    const bool done = close_file(std::exchange(file_, nullptr)) && replace_file(temporary_, target_);
    if (!done) {
        remove_file(temporary_);
    }
    return done;
}

} // namespace quadrelle
