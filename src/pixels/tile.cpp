#include "pixels/tile.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace quadrelle {

namespace {

constexpr std::size_t bytes_per_pixel = 4;

std::size_t checked_pixel_count(int width, int height) {
    const std::int64_t count = static_cast<std::int64_t>(width) * height;
    if (width < 0 || height < 0 || count > std::numeric_limits<int>::max()) {
        throw std::length_error("tile size");
    }
    return static_cast<std::size_t>(count);
}

} // namespace

Tile::Tile(int width, int height)
    : width_(width), height_(height), pixels_(checked_pixel_count(width, height)) {}

Tile::Tile(Size size, std::vector<Color> pixels)
    : width_(size.width), height_(size.height), pixels_(std::move(pixels)) {
    if (pixels_.size() != checked_pixel_count(width_, height_)) {
        throw std::length_error("tile pixels");
    }
}

std::uint64_t Tile::version() const {
    static std::uint64_t last_version = unknown_version;
    if (version_ == unknown_version) {
        version_ = ++last_version;
    }
    return version_;
}

bool Tile::is_as_new() const {
    return std::ranges::all_of(pixels_, [](Color pixel) { return pixel == Color(); });
}

std::size_t Tile::memory_size() const {
    const std::size_t pixel_bytes = pixels_.size() * bytes_per_pixel;
    const std::size_t texture_bytes = 32 + pixel_bytes;
    return 12 + pixel_bytes + texture_bytes;
}

Color Tile::get_pixel_clamped(int x, int y) const {
    // Not std::clamp, whose bounds must not cross: they do without pixels.
    return get_pixel(std::min(std::max(x, 0), width_ - 1), std::min(std::max(y, 0), height_ - 1));
}

void Tile::fill(Color color) {
    change_pixels([=](std::span<Color> pixels) { std::ranges::fill(pixels, color); });
}

void Tile::copy_to(Tile& other) const {
    other.copy_from(*this);
}

void Tile::copy_from(const Tile& other) {
    const std::size_t count = std::min(pixels_.size(), other.pixels_.size());
    change_pixels(
        [&](std::span<Color> pixels) { std::ranges::copy(other.pixels().first(count), pixels.begin()); });
}

void Tile::swap_pixels(Tile& other) {
    change_pixels([&](std::span<Color> own) {
        other.change_pixels([=](std::span<Color> others) { std::ranges::swap_ranges(own, others); });
    });
}

void Tile::paste_into(Tile& other, int dx, int dy) const {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            other.set_pixel(dx + x, dy + y, get_pixel(x, y));
        }
    }
}

Rectangle Tile::white_bounds() const {
    Rectangle bounds{width_ + 2, height_ + 2, 0, 0};
    Tile_Point last{-1, -1};
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            if (is_white_at(x, y)) {
                bounds.x = std::min(bounds.x, x);
                bounds.y = std::min(bounds.y, y);
                last = {std::max(last.x, x), std::max(last.y, y)};
            }
        }
    }
    bounds.width = last.x - bounds.x + 1;
    bounds.height = last.y - bounds.y + 1;
    return bounds;
}

void Tile::replace_near(int x, int y, Color match, Color color) {
    for (int near_y = y - 1; near_y <= y + 1; ++near_y) {
        for (int near_x = x - 1; near_x <= x + 1; ++near_x) {
            if (get_pixel(near_x, near_y).same_rgb(match)) {
                set_pixel(near_x, near_y, color);
            }
        }
    }
}

void Tile::replace_alpha(std::uint8_t from, std::uint8_t to) {
    map_colours([=](Color pixel) {
        pixel.a = pixel.a == from ? to : pixel.a;
        return pixel;
    });
}

void Tile::read_pixels(std::span<const std::uint8_t> bytes) {
    const std::size_t count = std::min(pixels_.size(), bytes.size() / bytes_per_pixel);
    change_pixels([&](std::span<Color> pixels) {
        for (std::size_t i = 0; i < count; ++i) {
            std::uint32_t turned = 0;
            std::memcpy(&turned, &bytes[i * bytes_per_pixel], bytes_per_pixel);
            pixels[i] = std::bit_cast<Color>(std::rotr(turned, 8));
        }
    });
}

// Alpha comes first there: the four bytes of a colour in memory, moved on by one. Four at once take a third
// of the time.
void Tile::write_pixels(std::span<std::uint8_t> bytes) const {
    const std::size_t count = std::min(pixels_.size(), bytes.size() / bytes_per_pixel);
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t turned = std::rotl(std::bit_cast<std::uint32_t>(pixels_[i]), 8);
        std::memcpy(&bytes[i * bytes_per_pixel], &turned, bytes_per_pixel);
    }
}

} // namespace quadrelle
