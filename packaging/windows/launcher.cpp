// Starts Quadrelle: in the folder of this program, where that can be written to; else in one of the user's
// own, which gets what the program needs to run there. Shows what error ended it.

#include <windows.h>

#include <array>
#include <optional>
#include <string>

namespace {

constexpr DWORD longest_path = 32768;
constexpr DWORD most_error_bytes = 4096;
constexpr std::array shipped{L"pool.bmp"};

void tell(const std::wstring& text) {
    MessageBoxW(nullptr, text.c_str(), L"Quadrelle", MB_OK | MB_ICONERROR | MB_SETFOREGROUND);
}

// Without a separator at its end.
std::wstring folder_of_this_program() {
    std::wstring path(longest_path, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), longest_path));
    return path.substr(0, path.find_last_of(L'\\'));
}

bool can_write(const std::wstring& folder) {
    const std::wstring trial = folder + L"\\.quadrelle-launcher.tmp";
    const HANDLE file = CreateFileW(trial.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return file != INVALID_HANDLE_VALUE && CloseHandle(file) != 0;
}

bool make_folder(const std::wstring& folder) {
    return CreateDirectoryW(folder.c_str(), nullptr) != 0 || GetLastError() == ERROR_ALREADY_EXISTS;
}

// A copy has the time of what it was made of.
bool is_copy(const std::wstring& from, const std::wstring& to) {
    WIN32_FILE_ATTRIBUTE_DATA one = {};
    WIN32_FILE_ATTRIBUTE_DATA other = {};
    return GetFileAttributesExW(from.c_str(), GetFileExInfoStandard, &one) != 0 &&
           GetFileAttributesExW(to.c_str(), GetFileExInfoStandard, &other) != 0 &&
           one.nFileSizeLow == other.nFileSizeLow &&
           CompareFileTime(&one.ftLastWriteTime, &other.ftLastWriteTime) == 0;
}

// Whole or not at all.
bool copy(const std::wstring& from, const std::wstring& to) {
    const std::wstring copied = to + L".new";
    if (CopyFileW(from.c_str(), copied.c_str(), FALSE) == 0) {
        return false;
    }
    SetFileAttributesW(copied.c_str(), FILE_ATTRIBUTE_NORMAL);
    return MoveFileExW(copied.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

// What a newer version brings replaces what an older one brought; all else in the folder is the user's.
std::optional<std::wstring> own_folder(const std::wstring& here) {
    std::wstring path(longest_path, L'\0');
    path.resize(GetEnvironmentVariableW(L"APPDATA", path.data(), longest_path));
    path += L"\\Quadrelle";
    if (!make_folder(path) || !make_folder(path + L"\\data")) {
        return std::nullopt;
    }
    for (const wchar_t* const name : shipped) {
        const std::wstring file = std::wstring(L"\\data\\") + name;
        if (!is_copy(here + file, path + file) && !copy(here + file, path + file)) {
            return std::nullopt;
        }
    }
    return path;
}

// The exit status; none where the program did not start.
std::optional<DWORD> run(const std::wstring& program, const std::wstring& folder) {
    std::wstring command = L"\"" + program + L"\"";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    if (CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                       &start, &process) == 0) {
        return std::nullopt;
    }
    AllowSetForegroundWindow(process.dwProcessId);
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return status;
}

void tell_error(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return;
    }
    std::string bytes(most_error_bytes, '\0');
    DWORD count = 0;
    ReadFile(file, bytes.data(), most_error_bytes, &count, nullptr);
    CloseHandle(file);
    std::wstring text(count, L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(count), text.data(),
                                           static_cast<int>(count));
    text.resize(static_cast<std::size_t>(length));
    tell(text);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    const std::wstring here = folder_of_this_program();
    const std::optional<std::wstring> folder = can_write(here + L"\\data") ? here : own_folder(here);
    if (!folder) {
        tell(L"Quadrelle needs a folder that it can write to, and there is none:\n" + here +
             L"\\data\n%APPDATA%\\Quadrelle");
        return 1;
    }
    const std::optional<DWORD> status = run(here + L"\\program\\quadrelle.exe", *folder);
    if (!status) {
        tell(L"This cannot be started. Unpack the whole archive again:\n" + here +
             L"\\program\\quadrelle.exe");
        return 1;
    }
    constexpr DWORD fatal_error = 1;
    if (*status == fatal_error) {
        tell_error(*folder + L"\\quadrelle-error.txt");
    }
    return static_cast<int>(*status);
}
