#ifdef _WIN32

#include "base/names_windows.h"
#include "base/platform_files.h"
#include "base/platform_files_backend.h"

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <vector>
#include <windows.h>

namespace quadrelle {

namespace {

constexpr DWORD longest_path = 32768;

int flags(File_Mode mode) {
    switch (mode) {
    case File_Mode::read: return _O_RDONLY;
    case File_Mode::write: return _O_WRONLY | _O_CREAT | _O_TRUNC;
    case File_Mode::create: return _O_WRONLY | _O_CREAT | _O_EXCL;
    case File_Mode::append: return _O_WRONLY | _O_APPEND;
    }
    return _O_RDONLY;
}

bool is_link(const std::string& name) {
    const DWORD attributes = GetFileAttributesW(wide(name).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

HANDLE handle_of(int descriptor) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

} // namespace

const char path_separator = '\\';

File_Handle platform::open_regular_file(const std::string& name, File_Mode mode) {
    const int descriptor =
        _wopen(wide(name).c_str(), flags(mode) | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
    if (descriptor < 0) {
        return nullptr;
    }
    std::FILE* file = nullptr;
    if (GetFileType(handle_of(descriptor)) == FILE_TYPE_DISK) {
        file = _fdopen(descriptor, mode == File_Mode::read ? "rb" : mode == File_Mode::append ? "ab" : "wb");
    }
    if (file == nullptr) {
        _close(descriptor);
    }
    return File_Handle(file);
}

std::int64_t platform::file_size(std::FILE* file) {
    return _filelengthi64(_fileno(file));
}

bool platform::synchronize(std::FILE* file) {
    return _commit(_fileno(file)) == 0;
}

bool platform::replace_file(const std::string& from, const std::string& to) {
    const DWORD options = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return MoveFileExW(wide(from).c_str(), wide(to).c_str(), options) != 0;
}

int platform::last_fault() {
    switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND: return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT: return EACCES;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: return ENOSPC;
    default: return 0;
    }
}

bool platform::link_file(const std::string& from, const std::string& to) {
    return CreateHardLinkW(wide(to).c_str(), wide(from).c_str(), nullptr) != 0;
}

bool remove_file(const std::string& name) {
    return DeleteFileW(wide(name).c_str()) != 0;
}

bool is_removed(std::FILE* /*file*/) {
    return false;
}

bool platform::can_replace(const std::string& name) {
    const DWORD attributes = GetFileAttributesW(wide(name).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return GetLastError() == ERROR_FILE_NOT_FOUND;
    }
    return (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DEVICE)) == 0;
}

std::optional<File_State> file_state(const std::string& name) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (GetFileAttributesExW(wide(name).c_str(), GetFileExInfoStandard, &data) == 0 ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return std::nullopt;
    }
    const auto joined = [](DWORD high, DWORD low) {
        return static_cast<std::int64_t>(high) << 32 | static_cast<std::int64_t>(low);
    };
    return File_State{joined(data.nFileSizeHigh, data.nFileSizeLow),
                      joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

void touch_file(const std::string& name) {
    const HANDLE file = CreateFileW(wide(name).c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        FILETIME now = {};
        GetSystemTimeAsFileTime(&now);
        SetFileTime(file, nullptr, nullptr, &now);
        CloseHandle(file);
    }
}

// Who may do what with the file, as it is: nothing is inherited anew.
void take_permissions(std::FILE* file, const std::string& name) {
    const std::wstring path = wide(name);
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::uint8_t> descriptor(size);
    if (GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size) == 0) {
        return;
    }
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    if (GetSecurityDescriptorControl(descriptor.data(), &control, &revision) != 0 &&
        (control & SE_DACL_AUTO_INHERITED) != 0) {
        constexpr SECURITY_DESCRIPTOR_CONTROL keep_inherited = SE_DACL_AUTO_INHERIT_REQ;
        SetSecurityDescriptorControl(descriptor.data(), keep_inherited, keep_inherited);
    }
    const HANDLE opened = ReOpenFile(handle_of(_fileno(file)), WRITE_DAC,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, 0);
    if (opened != INVALID_HANDLE_VALUE) {
        SetKernelObjectSecurity(opened, DACL_SECURITY_INFORMATION, descriptor.data());
        CloseHandle(opened);
    }
}

// Replacing a file writes through to the disk.
void flush_folder(const std::string&) {}

std::string resolve_links(const std::string& name) {
    if (!is_link(name)) {
        return name;
    }
    const HANDLE file =
        CreateFileW(wide(name).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return name;
    }
    std::wstring path(longest_path, L'\0');
    const DWORD length = GetFinalPathNameByHandleW(file, path.data(), longest_path, 0);
    path.resize(length < longest_path ? length : 0);
    CloseHandle(file);
    return path.empty() ? name : narrow(path);
}

std::string current_directory() {
    std::wstring directory(longest_path, L'\0');
    const DWORD length = GetCurrentDirectoryW(longest_path, directory.data());
    directory.resize(length < longest_path ? length : 0);
    return directory.empty() ? "." : narrow(directory);
}

std::string temporary_folder() {
    std::wstring folder(longest_path, L'\0');
    const DWORD length = GetTempPathW(longest_path, folder.data());
    folder.resize(length < longest_path ? length : 0);
    return folder.empty() ? "." : narrow(folder);
}

// `tmpfile` would ask for a place in the root of the drive.
File_Handle open_scratch_file() {
    std::wstring name(MAX_PATH, L'\0');
    if (GetTempFileNameW(wide(temporary_folder()).c_str(), L"qdl", 0, name.data()) == 0) {
        return nullptr;
    }
    return File_Handle(_wfopen(name.c_str(), L"w+bTD"));
}

bool change_directory(const std::string& name) {
    return SetCurrentDirectoryW(wide(name).c_str()) != 0;
}

Held_Folder::Held_Folder() : name_then_(current_directory()) {}

Held_Folder::~Held_Folder() = default;

std::string Held_Folder::path() const {
    return name_then_;
}

bool Held_Folder::enter() const {
    return change_directory(name_then_);
}

unsigned long process_number() {
    return GetCurrentProcessId();
}

bool is_running(unsigned long process) {
    const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    if (handle == nullptr) {
        return GetLastError() == ERROR_ACCESS_DENIED;
    }
    DWORD status = 0;
    const bool is_alive = GetExitCodeProcess(handle, &status) != 0 && status == STILL_ACTIVE;
    CloseHandle(handle);
    return is_alive;
}

} // namespace quadrelle

#endif
