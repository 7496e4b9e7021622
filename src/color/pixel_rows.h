#pragma once

// Rows of pixels in memory that somebody else owns.

#include "base/geometry.h"
#include "color/color.h"

#include <cstddef>

namespace quadrelle {

// `pitch` is the distance from row to row in bytes.
struct Pixel_Rows {
    Color* first = nullptr;
    std::ptrdiff_t pitch = 0;
    Size size;

    [[nodiscard]] Color* row(int y) const {
        return reinterpret_cast<Color*>(reinterpret_cast<std::byte*>(first) + y * pitch);
    }
    // The part must lie inside.
    [[nodiscard]] Pixel_Rows part(const Rectangle& area) const {
        return {row(area.y) + area.x, pitch, {area.width, area.height}};
    }
};

} // namespace quadrelle
