#ifndef _WIN32

#include "base/file_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quadrelle {

namespace {

int open_to_lock(const std::string& path) {
    const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
    return descriptor < 0 && errno == EISDIR ? open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)
                                             : descriptor;
}

// Whoever had the lock has removed the file in the meantime.
bool is_still_there(int descriptor, const std::string& path) {
    struct stat locked = {};
    struct stat named = {};
    return fstat(descriptor, &locked) == 0 && stat(path.c_str(), &named) == 0 &&
           locked.st_ino == named.st_ino && locked.st_dev == named.st_dev;
}

} // namespace

File_Lock::File_Lock(const std::string& path) : path_(path) {
    constexpr int most_attempts = 20;
    for (int i = 0; i < most_attempts && !is_taken() && !is_held_elsewhere_; ++i) {
        const int descriptor = open_to_lock(path);
        if (descriptor < 0) {
            return;
        }
        const bool is_locked = flock(descriptor, LOCK_EX | LOCK_NB) == 0;
        is_held_elsewhere_ = !is_locked && errno == EWOULDBLOCK;
        if (is_locked && is_still_there(descriptor, path)) {
            handle_ = descriptor;
        } else {
            close(descriptor);
        }
    }
}

std::unique_ptr<File_Lock> File_Lock::of_folder(const std::string& path) {
    return std::make_unique<File_Lock>(path);
}

File_Lock::~File_Lock() {
    if (is_taken()) {
        // No folder goes by this.
        unlink(path_.c_str());
        close(static_cast<int>(handle_));
    }
}

} // namespace quadrelle

#endif
