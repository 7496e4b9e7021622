#pragma once

// Palettes as other programs write and read them.

#include "color/palette.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

// The palette, or why there is none, as a sentence. Colours beyond the most that a palette has are counted.
struct Palette_Reading {
    std::optional<Palette> palette;
    std::string refusal = {};
    std::size_t left_out = 0;
};

// Takes ".gpl", ".pal" (both kinds), ".act", ".hex" and ".txt"; all but ".act" are known by what they hold. A
// palette without a name of its own is called like the file.
[[nodiscard]] Palette_Reading read_palette(std::span<const std::uint8_t> content,
                                           const std::string& file_name);
// Whether only the name says that the file is a palette: what it begins with may look like a picture.
[[nodiscard]] bool is_color_table(const std::string& path);
// Whether the name says that the file is a palette, whatever is in it.
[[nodiscard]] bool is_named_as_palette(const std::string& path);
// Reads that file, unless it is too large for any palette.
[[nodiscard]] Palette_Reading read_palette_file(const std::string& path);
// Returns the file's name without folders and extension, as palettes from it are called.
[[nodiscard]] std::string name_of_file(const std::string& path);
// Takes colours in hexadecimal digits with blanks, commas or semicolons between them.
[[nodiscard]] Palette_Reading read_hex_colors(std::string_view text);

// Alpha stands in the column of the colours' names: who knows no alpha reads the rest.
[[nodiscard]] std::string gpl_text(const Palette& palette);
// A line for each colour, with two more digits where it is not opaque.
[[nodiscard]] std::string hex_lines(const std::vector<Color>& colors);

} // namespace quadrelle
