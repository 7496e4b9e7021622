#pragma once

// Pictures as the bytes of a file, for other programs. What comes from them is checked before it is used.

#include "pixels/tile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quadrelle {

enum class Picture_Fault { none, broken, too_large };

struct Decoded_Picture {
    std::optional<Tile> picture; // present when there is no fault, and then has pixels
    Picture_Fault fault = Picture_Fault::none;
};

using Picture_Bytes = std::span<const std::uint8_t>;

// Larger pictures are not taken.
constexpr int largest_picture_edge = 4096;
constexpr std::size_t most_picture_bytes = std::size_t{64} << 20U;

struct Picture_Format {
    const char* media_type;
    Decoded_Picture (*decode)(Picture_Bytes bytes);
    std::vector<std::uint8_t> (*encode)(const Tile& picture); // empty when that failed
};

[[nodiscard]] Decoded_Picture decode_bitmap(Picture_Bytes bytes);
[[nodiscard]] std::vector<std::uint8_t> encode_bitmap(const Tile& picture);
[[nodiscard]] Decoded_Picture decode_png(Picture_Bytes bytes);
[[nodiscard]] std::vector<std::uint8_t> encode_png(const Tile& picture);

// The best format comes first.
constexpr std::array picture_formats = std::to_array<Picture_Format>({
    {"image/png", decode_png, encode_png},
    {"image/bmp", decode_bitmap, encode_bitmap},
});

// Judges the size that a file announces. It is asked before memory is taken.
[[nodiscard]] Picture_Fault fault_of_size(std::int64_t width, std::int64_t height);

} // namespace quadrelle
