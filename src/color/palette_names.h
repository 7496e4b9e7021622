#pragma once

// Names of palettes, and of the files that they are kept in.

#include <cstddef>
#include <string>

namespace quadrelle {

constexpr std::size_t longest_palette_name = 1000; // in bytes

// Returns the name without what no line or no name can have, and not too long.
[[nodiscard]] std::string clean_name(std::string name);
// "Sea" of "Sea 2".
[[nodiscard]] std::string without_number(const std::string& name);
// Returns the file's name without extension: what some file system takes for something else becomes "_".
[[nodiscard]] std::string palette_stem(const std::string& palette_name);

} // namespace quadrelle
