#include "base/atomic_file.h"

#include "base/platform_files.h"

#include <random>
#include <utility>

namespace quadrelle {

namespace {

// Short whatever the target is called, so that it fits wherever the target's name does.
std::string unlikely_name(const std::string& folder) {
    std::random_device random;
    return folder + ".quadrelle-" + std::to_string(random()) + ".tmp";
}

} // namespace

Atomic_File::Atomic_File(const std::string& path) : target_(resolve_links(path)) {
    if (!can_replace(target_)) {
        return;
    }
    constexpr int most_attempts = 20;
    for (int i = 0; i < most_attempts && !file_; ++i) {
        temporary_ = unlikely_name(folder_part(target_));
        file_ = open_file(temporary_, File_Mode::create);
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
