#ifdef _WIN32

#include "base/file_lock.h"
#include "base/names_windows.h"

#include <windows.h>

namespace quadrelle {

// Shared with nobody, and gone when it is closed.
File_Lock::File_Lock(const std::string& path) : path_(path) {
    const HANDLE handle = CreateFileW(wide(path).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        handle_ = reinterpret_cast<std::intptr_t>(handle);
    } else {
        is_held_elsewhere_ = GetLastError() == ERROR_SHARING_VIOLATION;
    }
}

std::unique_ptr<File_Lock> File_Lock::of_folder(const std::string& path) {
    return std::make_unique<File_Lock>(path + "\\in-use.lock");
}

File_Lock::~File_Lock() {
    if (is_taken()) {
        CloseHandle(reinterpret_cast<HANDLE>(handle_));
    }
}

} // namespace quadrelle

#endif
