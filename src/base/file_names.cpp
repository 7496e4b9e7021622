#include "base/file_names.h"

#include "base/platform_files.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <numeric>

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

constexpr bool is_digit(char character) {
    return character >= '0' && character <= '9';
}

// Takes the digits off the start of the text, and answers them without their leading zeros.
std::string_view take_number(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::string_view number = text.substr(0, end);
    text.remove_prefix(end);
    return number.substr(std::min(number.find_first_not_of('0'), number.size()));
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
    std::string_view left = one;
    std::string_view right = other;
    while (!left.empty() && !right.empty()) {
        if (is_digit(left.front()) && is_digit(right.front())) {
            const std::string_view number = take_number(left);
            const std::string_view other_number = take_number(right);
            if (number != other_number) {
                return number.size() == other_number.size() ? number < other_number
                                                            : number.size() < other_number.size();
            }
        } else if (lower(left.front()) != lower(right.front())) {
            return lower(left.front()) < lower(right.front());
        } else {
            left.remove_prefix(1);
            right.remove_prefix(1);
        }
    }
    return left.empty() == right.empty() ? one < other : left.empty();
}

std::string file_part(const std::string& path, int folders) {
    std::size_t start = path.size();
    for (int separators = 0; start > 0; --start) {
        separators += is_separator(path[start - 1]) ? 1 : 0;
        if (separators > folders) {
            break;
        }
    }
    return path.substr(start);
}

std::vector<std::string> short_names(std::span<const std::string> paths) {
    std::vector<std::string> names(paths.size());
    std::vector<std::size_t> alike(paths.size());
    std::iota(alike.begin(), alike.end(), std::size_t{0});
    // One folder more at a time for those that are still alike, until they have no more.
    for (int folders = 0; !alike.empty(); ++folders) {
        std::map<std::string, std::vector<std::size_t>> groups;
        for (const std::size_t i : alike) {
            names[i] = file_part(paths[i], folders);
            groups[names[i]].push_back(i);
        }
        alike.clear();
        for (const auto& [name, group] : groups) {
            const std::string& first = paths[group.front()];
            const bool can_differ =
                std::ranges::any_of(group, [&](std::size_t place) { return paths[place] != first; });
            if (can_differ) {
                alike.insert(alike.end(), group.begin(), group.end());
            }
        }
    }
    return names;
}

} // namespace quadrelle
