#include "tools/brush.h"

#include "pixels/tile.h"

#include <stdexcept>
#include <utility>

namespace quadrelle {

namespace {

std::size_t area(Size size) {
    if (size.width < 1 || size.height < 1) {
        throw std::length_error("brush size");
    }
    return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
}

int wrapped(std::int64_t number, int length) {
    const std::int64_t remainder = number % length;
    return static_cast<int>(remainder < 0 ? remainder + length : remainder);
}

} // namespace

Brush::Brush(Size size, std::vector<std::optional<Color>> pixels, Brush_Owner owner)
    : size_(size), pixels_(std::move(pixels)), owner_(owner) {
    if (pixels_.size() != area(size)) {
        throw std::length_error("brush pixels");
    }
}

std::optional<Color> Brush::wallpaper_pixel(std::int64_t x, std::int64_t y) const {
    return pixel(wrapped(x, size_.width), wrapped(y, size_.height));
}

Brush built_in_brush(Brush_Shape shape, int size_index, Color color, Brush_Owner owner) {
    std::vector<std::optional<Color>> pixels;
    for (int y = 0; y <= size_index; ++y) {
        for (int x = 0; x <= size_index; ++x) {
            pixels.push_back(brush_mask_at(shape, size_index, x, y) ? std::optional(color) : std::nullopt);
        }
    }
    return {{size_index + 1, size_index + 1}, std::move(pixels), owner};
}

Brush stamp_brush(const Tile& picture, const Tile& mask) {
    std::vector<std::optional<Color>> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Color color = picture.get_pixel(x, y);
            const bool paints = mask.is_white_at(x, y) && color.a != 0;
            pixels.push_back(paints ? std::optional(color) : std::nullopt);
        }
    }
    return {picture.size(), std::move(pixels), Brush_Owner::stamp_brush};
}

} // namespace quadrelle
