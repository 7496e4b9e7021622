#pragma once

// What stands in a bitmap file before its pixels.

#include "pixels/picture_formats.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace quadrelle {

struct Bitmap_Header {
    Size size;
    bool is_from_top = false; // else the lowest row comes first
    int depth = 0;            // bits a pixel
    bool has_runs = false;
    bool may_lack_alpha = false;          // the bits of alpha may mean nothing
    std::array<std::uint32_t, 4> masks{}; // red, green, blue, alpha within a pixel, where there is no palette
    std::array<Color, 256> palette{};     // opaque
    std::size_t pixels_at = 0;            // from the start of the file, and within it

    [[nodiscard]] bool has_palette() const { return depth <= 8; }
};

// Fills the header when there is no fault. Reads no pixel.
[[nodiscard]] Picture_Fault read_bitmap_header(Picture_Bytes bytes, int largest_edge, Bitmap_Header& header);

// Returns a number whose lowest byte comes first. It must lie within the bytes.
[[nodiscard]] inline std::uint32_t number_at(Picture_Bytes bytes, std::size_t offset, std::size_t length) {
    std::uint32_t number = 0;
    for (std::size_t i = length; i > 0; --i) {
        number = number << 8U | bytes[offset + i - 1];
    }
    return number;
}

} // namespace quadrelle
