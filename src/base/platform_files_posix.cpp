#ifndef _WIN32

#include "base/platform_files.h"
#include "base/platform_files_backend.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quadrelle {

namespace {

int flags(File_Mode mode) {
    switch (mode) {
    case File_Mode::read: return O_RDONLY;
    case File_Mode::write: return O_WRONLY | O_CREAT;
    case File_Mode::create: return O_WRONLY | O_CREAT | O_EXCL;
    case File_Mode::append: return O_WRONLY | O_APPEND;
    }
    return O_RDONLY;
}

const char* stream_mode(File_Mode mode) {
    switch (mode) {
    case File_Mode::read: return "rb";
    case File_Mode::append: return "ab";
    default: return "wb";
    }
}

// Why something that is no regular file cannot be written to or read.
int fault_of_kind(mode_t mode) {
    return S_ISDIR(mode) ? EISDIR : EINVAL;
}

// Emptied only when it is known to be a regular file.
bool prepare(int descriptor, File_Mode mode) {
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        errno = fault_of_kind(status.st_mode);
        return false;
    }
    return mode != File_Mode::write || ftruncate(descriptor, 0) == 0;
}

// Empty for anything but a symbolic link.
std::string link_target(const std::string& name) {
    std::string target(PATH_MAX, '\0');
    const ssize_t length = readlink(name.c_str(), target.data(), target.size());
    target.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return target;
}

} // namespace

const char path_separator = '/';

File_Handle platform::open_regular_file(const std::string& name, File_Mode mode) {
    // Without waiting: a pipe would hold the program until somebody opens its other end.
    const int descriptor = open(name.c_str(), flags(mode) | O_NONBLOCK | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        return nullptr;
    }
    std::FILE* file = nullptr;
    if (prepare(descriptor, mode)) {
        file = fdopen(descriptor, stream_mode(mode));
    }
    if (file == nullptr) {
        const int fault = errno;
        close(descriptor);
        errno = fault;
    }
    return File_Handle(file);
}

std::int64_t platform::file_size(std::FILE* file) {
    struct stat status = {};
    return fstat(fileno(file), &status) == 0 ? status.st_size : -1;
}

bool platform::synchronize(std::FILE* file) {
    // Some file systems cannot do it and say so with EINVAL.
    return fsync(fileno(file)) == 0 || errno == EINVAL;
}

bool platform::replace_file(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

int platform::last_fault() {
    return errno;
}

bool platform::link_file(const std::string& from, const std::string& to) {
    return link(from.c_str(), to.c_str()) == 0;
}

bool remove_file(const std::string& name) {
    return unlink(name.c_str()) == 0;
}

bool is_removed(std::FILE* file) {
    struct stat status = {};
    return fstat(fileno(file), &status) == 0 && status.st_nlink == 0;
}

bool platform::can_replace(const std::string& name) {
    struct stat status = {};
    if (stat(name.c_str(), &status) != 0) {
        return errno == ENOENT;
    }
    if (!S_ISREG(status.st_mode)) {
        errno = fault_of_kind(status.st_mode);
        return false;
    }
    return access(name.c_str(), W_OK) == 0;
}

std::optional<File_State> file_state(const std::string& name) {
    struct stat status = {};
    if (stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
#ifdef __APPLE__
    const timespec modified = status.st_mtimespec;
#else
    const timespec modified = status.st_mtim;
#endif
    return File_State{status.st_size, std::int64_t{modified.tv_sec} * 1'000'000'000 + modified.tv_nsec};
}

void touch_file(const std::string& name) {
    utimensat(AT_FDCWD, name.c_str(), nullptr, 0);
}

void take_permissions(std::FILE* file, const std::string& name) {
    struct stat status = {};
    if (stat(name.c_str(), &status) == 0) {
        // Where it is refused the new file keeps what any new file has. The owner comes first: a change of it
        // may take bits away.
        [[maybe_unused]] int result = fchown(fileno(file), status.st_uid, status.st_gid);
        result = fchmod(fileno(file), status.st_mode & 0777);
    }
}

void flush_folder(const std::string& folder) {
    const int descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        // Some file systems cannot do it; the file is there all the same.
        fsync(descriptor);
        close(descriptor);
    }
}

std::string resolve_links(const std::string& name) {
    constexpr int most_links = 40;
    std::string resolved = name;
    for (int i = 0; i < most_links; ++i) {
        const std::string target = link_target(resolved);
        if (target.empty()) {
            break;
        }
        // A relative one starts from the link's own folder.
        resolved = (target.front() == '/' ? std::string() : folder_part(resolved)).append(target);
    }
    return resolved;
}

std::string current_directory() {
    std::string directory(PATH_MAX, '\0');
    if (getcwd(directory.data(), directory.size()) == nullptr) {
        return ".";
    }
    directory.resize(directory.find('\0'));
    return directory;
}

std::string temporary_folder() {
    const char* const named = std::getenv("TMPDIR");
    return named != nullptr && *named != '\0' ? named : "/tmp";
}

File_Handle open_scratch_file() {
    return File_Handle(std::tmpfile());
}

bool change_directory(const std::string& name) {
    return chdir(name.c_str()) == 0;
}

Held_Folder::Held_Folder()
    : name_then_(current_directory()), descriptor_(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

Held_Folder::~Held_Folder() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

// Only some systems know the name of what is open; else it may still have the old one.
std::string Held_Folder::path() const {
    std::string name = link_target("/proc/self/fd/" + std::to_string(descriptor_));
    name = name.empty() ? name_then_ : name;
    struct stat held = {};
    struct stat named = {};
    const bool is_there = fstat(descriptor_, &held) == 0 && stat(name.c_str(), &named) == 0 &&
                          held.st_ino == named.st_ino && held.st_dev == named.st_dev;
    return is_there ? name : std::string();
}

bool Held_Folder::enter() const {
    return fchdir(descriptor_) == 0;
}

unsigned long process_number() {
    return static_cast<unsigned long>(getpid());
}

// It may belong to somebody else.
bool is_running(unsigned long process) {
    return process <= INT_MAX && (kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
}

} // namespace quadrelle

#endif
