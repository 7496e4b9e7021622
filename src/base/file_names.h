#pragma once

// Names of files and folders as texts; nothing here looks at a disk.

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

// Returns the path with its extension, if any, replaced.
[[nodiscard]] std::string with_extension(const std::string& path, const std::string& extension);
// Whether a name ends in the extension, whatever the case of its letters.
[[nodiscard]] bool has_extension(std::string_view name, std::string_view extension);

[[nodiscard]] std::string joined_path(const std::string& folder, std::string_view name);
// A root has no parent: the answer is empty.
[[nodiscard]] std::string parent_folder(const std::string& folder);
// Returns where a path that was typed in a folder leads, with "." and ".." worked in.
[[nodiscard]] std::string resolved_path(const std::string& folder, std::string_view typed);

// Whether the one comes before the other in a list: numbers by their value, and the case of letters and zeros
// in front of a number decide only where nothing else does.
[[nodiscard]] bool is_listed_before(std::string_view one, std::string_view other);

// Returns the file's name, with so many of the folders in front of it as far as there are any.
[[nodiscard]] std::string file_part(const std::string& path, int folders = 0);
// Returns what tells files apart beside each other: the name, and where several have the same one, folders
// too.
[[nodiscard]] std::vector<std::string> short_names(std::span<const std::string> paths);

} // namespace quadrelle
