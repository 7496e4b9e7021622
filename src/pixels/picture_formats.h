#pragma once

// Pictures as the bytes of a file, for other programs. What comes from them is checked before it is used, and
// takes memory only as far as the bytes hold pixels.

#include "pixels/tile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

enum class Picture_Fault {
    none,
    unreadable, // there is no such file, or it cannot be opened
    unknown,    // it does not begin as a picture does
    broken,
    too_large,
};

struct Decoded_Picture {
    std::optional<Tile> picture; // present when there is no fault, and then has pixels
    Picture_Fault fault = Picture_Fault::none;
};

using Picture_Bytes = std::span<const std::uint8_t>;

// Larger pictures are not taken from the clipboard.
constexpr int largest_picture_edge = 4096;
constexpr std::size_t most_picture_bytes = std::size_t{64} << 20U;
// Nor from a file.
constexpr int largest_file_edge = 8192;

struct Picture_Format {
    const char* media_type;
    std::string_view start; // of each file
    Decoded_Picture (*decoder)(Picture_Bytes bytes, int largest_edge);
    std::vector<std::uint8_t> (*encode)(const Tile& picture); // empty when that failed

    [[nodiscard]] Decoded_Picture decode(Picture_Bytes bytes, int largest_edge = largest_picture_edge) const {
        return decoder(bytes, largest_edge);
    }
};

// Every kind of bitmap but those that hold a JPEG or PNG.
[[nodiscard]] Decoded_Picture decode_bitmap(Picture_Bytes bytes, int largest_edge = largest_picture_edge);
[[nodiscard]] std::vector<std::uint8_t> encode_bitmap(const Tile& picture);
// Colours come as they are stored, those of transparent pixels too; 16 bits become 8.
[[nodiscard]] Decoded_Picture decode_png(Picture_Bytes bytes, int largest_edge = largest_picture_edge);
[[nodiscard]] std::vector<std::uint8_t> encode_png(const Tile& picture);

// The best format comes first.
constexpr std::array picture_formats = std::to_array<Picture_Format>({
    {"image/png", "\x89PNG\r\n\x1a\n", decode_png, encode_png},
    {"image/bmp", "BM", decode_bitmap, encode_bitmap},
});

// Judges the size that a file announces. It is asked before memory is taken.
[[nodiscard]] Picture_Fault fault_of_size(std::int64_t width, std::int64_t height, int largest_edge);

// Takes a picture file of any of the formats, whatever its name.
[[nodiscard]] Decoded_Picture read_picture(const std::string& path);
// Returns what to tell the user, as a sentence.
[[nodiscard]] const char* text_of(Picture_Fault fault);

} // namespace quadrelle
