#ifdef _WIN32

#include "base/names_windows.h"

#include <windows.h>

namespace quadrelle {

namespace {

// A folder must leave room for a file's name of the old short form.
constexpr std::size_t longest_usual_path = MAX_PATH - 12;
constexpr std::wstring_view without_limit = LR"(\\?\)";
constexpr std::wstring_view of_network = LR"(\\)";

std::wstring to_utf16(const std::string& text) {
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, result.data(), length);
    return result;
}

// From the root on, with backslashes, without "." and "..": nothing is worked in behind the prefix.
std::wstring full_path(const std::wstring& name) {
    const DWORD room = GetFullPathNameW(name.c_str(), 0, nullptr, nullptr);
    std::wstring path(room, L'\0');
    path.resize(GetFullPathNameW(name.c_str(), room, path.data(), nullptr));
    return path;
}

} // namespace

std::wstring wide(const std::string& name) {
    const std::wstring usual = to_utf16(name);
    const std::wstring path = usual.starts_with(without_limit) || usual.empty() ? usual : full_path(usual);
    if (path.size() < longest_usual_path || path.starts_with(without_limit)) {
        return usual;
    }
    return std::wstring(without_limit) + (path.starts_with(of_network) ? L"UNC" + path.substr(1) : path);
}

std::string narrow(const std::wstring& name) {
    const int size = static_cast<int>(name.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, name.data(), size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, name.data(), size, result.data(), length, nullptr, nullptr);
    return result;
}

} // namespace quadrelle

#endif
