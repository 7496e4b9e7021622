#include "base/platform_files.h"

#include "base/platform_files_backend.h"
#include "base/thread_end.h"

#include <SDL3/SDL_filesystem.h>
#include <SDL3/SDL_thread.h>

#include <cerrno>
#include <system_error>

namespace quadrelle {

namespace {

// Of the thread that has set it: a test counts its own operations.
thread_local File_Fault_Hook fault_hook = nullptr;

// Each thread has its own.
std::string& fault() {
    thread_local std::string last_fault;
    return last_fault;
}

bool is_made_to_fail() {
    const bool fails = fault_hook != nullptr && fault_hook();
    if (fails) {
        errno = EIO;
    }
    return fails;
}

// Hands on what an operation answers, after the platform was asked why it failed.
bool noted(bool is_done) {
    if (!is_done) {
        const int number = platform::last_fault();
        fault() = number == 0 ? std::string() : std::generic_category().message(number);
    }
    return is_done;
}

Path_Kind kind_of(SDL_PathType type) {
    switch (type) {
    case SDL_PATHTYPE_FILE: return Path_Kind::file;
    case SDL_PATHTYPE_DIRECTORY: return Path_Kind::folder;
    case SDL_PATHTYPE_OTHER: return Path_Kind::other;
    default: return Path_Kind::nothing;
    }
}

SDL_EnumerationResult SDLCALL add_entry(void* entries, const char* folder, const char* name) {
    static_cast<std::vector<Folder_Entry>*>(entries)->push_back(
        {name, path_kind(std::string(folder) + path_separator + name)});
    return SDL_ENUM_CONTINUE;
}

SDL_EnumerationResult SDLCALL add_name(void* names, const char* /*folder*/, const char* name) {
    static_cast<std::vector<std::string>*>(names)->emplace_back(name);
    return SDL_ENUM_CONTINUE;
}

} // namespace

void set_file_fault_hook(File_Fault_Hook hook) {
    fault_hook = hook;
}

std::string last_file_fault() {
    return fault();
}

void set_file_fault(std::string_view what) {
    fault() = what;
}

File_Handle open_file(const std::string& name, File_Mode mode) {
    const bool fails = mode != File_Mode::read && is_made_to_fail();
    File_Handle file = fails ? nullptr : platform::open_regular_file(name, mode);
    noted(file != nullptr);
    return file;
}

std::int64_t file_size(std::FILE* file) {
    return platform::file_size(file);
}

std::size_t read_bytes(std::FILE* file, std::span<std::uint8_t> buffer) {
    return buffer.empty() ? 0 : std::fread(buffer.data(), 1, buffer.size(), file);
}

bool write_bytes(std::FILE* file, std::span<const std::uint8_t> bytes) {
    // A disk that runs full takes a part.
    const std::size_t accepted = is_made_to_fail() ? bytes.size() / 2 : bytes.size();
    const std::size_t written = bytes.empty() ? 0 : std::fwrite(bytes.data(), 1, accepted, file);
    return noted(written == bytes.size());
}

bool flush_to_disk(std::FILE* file) {
    return noted(!is_made_to_fail() && std::fflush(file) == 0 && platform::synchronize(file));
}

bool close_file(File_Handle file) {
    const bool fails = is_made_to_fail();
    const bool closed = std::fclose(file.release()) == 0;
    return noted(closed && !fails);
}

bool replace_file(const std::string& from, const std::string& to) {
    return noted(!is_made_to_fail() && platform::replace_file(from, to));
}

bool link_file(const std::string& from, const std::string& to) {
    return noted(!is_made_to_fail() && platform::link_file(from, to));
}

bool can_replace(const std::string& name) {
    return noted(platform::can_replace(name));
}

Path_Kind path_kind(const std::string& name) {
    SDL_PathInfo info{};
    return SDL_GetPathInfo(name.c_str(), &info) ? kind_of(info.type) : Path_Kind::nothing;
}

std::optional<std::vector<std::uint8_t>> file_bytes(const std::string& name) {
    const File_Handle file = open_file(name, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : -1;
    if (size < 0) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    bytes.resize(read_bytes(file.get(), bytes));
    return bytes;
}

void remove_folder(const std::string& name) {
    SDL_RemovePath(name.c_str());
}

bool make_folder(const std::string& name) {
    return noted(!is_made_to_fail() && SDL_CreateDirectory(name.c_str()));
}

std::optional<std::vector<Folder_Entry>> folder_entries(const std::string& folder) {
    std::vector<Folder_Entry> entries;
    // The library cuts separators off the end, and of "/" nothing would be left.
    const std::string from = folder + path_separator + '.';
    if (!SDL_EnumerateDirectory(from.c_str(), add_entry, &entries)) {
        return std::nullopt;
    }
    return entries;
}

std::vector<std::string> folder_names(const std::string& folder) {
    std::vector<std::string> names;
    const std::string from = folder + (folder.empty() ? "" : std::string(1, path_separator)) + '.';
    static_cast<void>(SDL_EnumerateDirectory(from.c_str(), add_name, &names));
    return names;
}

std::string folder_part(const std::string& name) {
    const char* const separators = path_separator == '\\' ? "\\/:" : "/";
    const std::size_t end = name.find_last_of(separators);
    return end == std::string::npos ? std::string() : name.substr(0, end + 1);
}

void release_thread_memory() {
    SDL_CleanupTLS();
}

} // namespace quadrelle
