#include "base/file_names.h"

#include "base/platform_files.h"

#include <algorithm>

namespace quadrelle {

namespace {

// The place of the dot that starts the extension; a dot at the start of a name starts none.
std::size_t extension_start(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    const std::size_t separator = path.find_last_of("/\\");
    const std::size_t name = separator == std::string::npos ? 0 : separator + 1;
    return dot == std::string::npos || dot <= name ? std::string::npos : dot;
}

constexpr unsigned char lower(char letter) {
    return static_cast<unsigned char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
}

bool is_separator(char character) {
    return character == '/' || character == path_separator;
}

bool has_drive(std::string_view path) {
    return path_separator == '\\' && path.size() > 1 && path[1] == ':';
}

// "/", "C:\" or nothing.
std::size_t root_length(std::string_view path) {
    const std::size_t drive = has_drive(path) ? 2 : 0;
    return path.size() > drive && is_separator(path[drive]) ? drive + 1 : 0;
}

} // namespace

std::string with_extension(const std::string& path, const std::string& extension) {
    return path.substr(0, extension_start(path)) + "." + extension;
}

bool has_extension(std::string_view name, std::string_view extension) {
    if (name.size() <= extension.size() + 1 || name[name.size() - extension.size() - 1] != '.') {
        return false;
    }
    const std::string_view end = name.substr(name.size() - extension.size());
    return std::ranges::equal(end, extension, {}, lower, lower);
}

std::string joined_path(const std::string& folder, std::string_view name) {
    std::string path = folder;
    if (path.empty() || !is_separator(path.back())) {
        path += path_separator;
    }
    return path.append(name);
}

std::string parent_folder(const std::string& folder) {
    const std::size_t root = root_length(folder);
    std::size_t end = folder.size();
    const auto skip = [&](bool separators) {
        while (end > root && is_separator(folder[end - 1]) == separators) {
            --end;
        }
    };
    skip(true);
    const bool is_root = end <= root;
    skip(false);
    skip(true);
    return is_root ? std::string() : folder.substr(0, end);
}

std::string resolved_path(const std::string& folder, std::string_view typed) {
    const std::size_t root = root_length(typed);
    std::string path = root == 0 ? folder : std::string(typed.substr(0, root));
    for (std::size_t start = root; start < typed.size();) {
        const auto end = std::find_if(typed.begin() + static_cast<std::ptrdiff_t>(start), typed.end(),
                                      [](char character) { return is_separator(character); });
        const auto length = static_cast<std::size_t>(end - typed.begin()) - start;
        const std::string_view step = typed.substr(start, length);
        start += length + 1;
        if (step == "..") {
            const std::string parent = parent_folder(path);
            path = parent.empty() ? path : parent;
        } else if (!step.empty() && step != ".") {
            path = joined_path(path, step);
        }
    }
    return path;
}

bool is_listed_before(std::string_view one, std::string_view other) {
    const auto [left, right] = std::ranges::mismatch(one, other, {}, lower, lower);
    if (left == one.end() && right == other.end()) {
        return one < other;
    }
    return right != other.end() && (left == one.end() || lower(*left) < lower(*right));
}

} // namespace quadrelle
