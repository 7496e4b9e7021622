#pragma once

// What a pen lays onto a tile: a small picture of which only the set pixels paint.

#include "base/geometry.h"
#include "color/color.h"
#include "tools/brush_masks.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace quadrelle {

class Tile;

// The tool whose brush it is.
enum class Brush_Owner : std::int32_t {
    none = -1,
    pen = 0,
    lightness_pen = 1,
    colorize_pen = 3,
    smudge_brush = 4,
    stamp_brush = 6
};

// A brush is at least one pixel wide and high.
class Brush {
public:
    // The pixels stand row by row from the top, without a colour where the mask is clear. Throws
    // std::length_error for a size below 1 or a number of pixels that does not fit it.
    Brush(Size size, std::vector<std::optional<Color>> pixels, Brush_Owner owner);

    [[nodiscard]] Size size() const { return size_; }
    [[nodiscard]] Brush_Owner owner() const { return owner_; }
    // Returns none where the mask is clear; x and y lie inside the brush.
    [[nodiscard]] std::optional<Color> pixel(int x, int y) const {
        return pixels_[static_cast<std::size_t>(x) +
                       static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(y)];
    }
    // Returns the pixel of brushes laid side by side without end, one of them with its corner on (0, 0).
    [[nodiscard]] std::optional<Color> wallpaper_pixel(std::int64_t x, std::int64_t y) const;

private:
    Size size_;
    std::vector<std::optional<Color>> pixels_;
    Brush_Owner owner_;
};

// `size_index` 0 to 5 is one less than the width and height.
[[nodiscard]] Brush built_in_brush(Brush_Shape shape, int size_index, Color color,
                                   Brush_Owner owner = Brush_Owner::pen);

// The brush is the picture where the mask is white. What is transparent in it never paints.
[[nodiscard]] Brush stamp_brush(const Tile& picture, const Tile& mask);

} // namespace quadrelle
