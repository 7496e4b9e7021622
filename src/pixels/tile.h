#pragma once

// A rectangle of colours. Knows nothing of tilesets, tools or the window.

#include "base/geometry.h"
#include "color/color.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quadrelle {

// Width and height may be 0; then there is no pixel to work on.
class Tile {
public:
    // Makes it opaque black. Throws std::length_error for a negative size or more pixels than an int counts.
    Tile(int width, int height);
    // Throws the same when there are not as many pixels as the size says.
    Tile(Size size, std::vector<Color> pixels);
    Tile(const Tile&) = default;
    // Nothing may be done any more with a tile that was moved from.
    Tile(Tile&&) = default;
    Tile& operator=(const Tile&) = delete;

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] Size size() const { return {width_, height_}; }
    [[nodiscard]] int pixel_count() const { return static_cast<int>(pixels_.size()); }
    // The pixels stand row by row from the top, left to right.
    [[nodiscard]] std::span<const Color> pixels() const { return pixels_; }
    [[nodiscard]] bool same_size(const Tile& other) const { return size() == other.size(); }
    // Of the same size too.
    [[nodiscard]] bool same_pixels(const Tile& other) const {
        return same_size(other) && pixels_ == other.pixels_;
    }
    // Every pixel is opaque black.
    [[nodiscard]] bool is_as_new() const;
    // Two tiles with the same version, or one at two times, have the same size and pixels. Never 0. Whoever
    // shows a tile knows by it whether the picture is still right.
    [[nodiscard]] std::uint64_t version() const;
    // Returns the bytes of the pixels and of a texture for them, as the statistics count them, shown or not.
    [[nodiscard]] std::size_t memory_size() const;

    [[nodiscard]] bool is_outside(int x, int y) const {
        return x < 0 || y < 0 || x >= width_ || y >= height_;
    }
    [[nodiscard]] bool is_outside_index(int i) const { return i < 0 || i >= pixel_count(); }
    // Outside: transparent magenta.
    [[nodiscard]] Color get_pixel(int x, int y) const {
        return is_outside(x, y) ? Color{255, 0, 255, 0} : pixels_[offset(x, y)];
    }
    // The nearest pixel of the tile.
    [[nodiscard]] Color get_pixel_clamped(int x, int y) const;
    // Outside: opaque (250, 50, 250).
    [[nodiscard]] Color get_pixel_at(int i) const {
        return is_outside_index(i) ? Color{250, 50, 250, 255} : pixels_[static_cast<std::size_t>(i)];
    }
    // False, and nothing written, outside.
    bool set_pixel(int x, int y, Color color) {
        if (is_outside(x, y)) {
            return false;
        }
        pixels_[offset(x, y)] = color;
        version_ = unknown_version;
        return true;
    }
    void set_pixel_at(int i, Color color) {
        if (!is_outside_index(i)) {
            pixels_[static_cast<std::size_t>(i)] = color;
            version_ = unknown_version;
        }
    }
    // Alpha is not looked at.
    [[nodiscard]] bool is_white_at(int x, int y) const { return get_pixel(x, y).same_rgb({255, 255, 255}); }
    // Black with alpha 0.
    [[nodiscard]] bool is_empty_at(int x, int y) const { return get_pixel(x, y) == Color{0, 0, 0, 0}; }
    [[nodiscard]] std::uint8_t alpha_at(int x, int y) const { return get_pixel(x, y).a; }

    void fill(Color color);
    // Copies and swaps are for tiles of one size.
    void copy_to(Tile& other) const;
    void copy_from(const Tile& other);
    void swap_pixels(Tile& other);
    // This tile's top left corner lies at (dx, dy) of the other; what falls outside is dropped.
    void paste_into(Tile& other, int dx, int dy) const;

    // The smallest rectangle around the white pixels; without any its width and height are negative.
    [[nodiscard]] Rectangle white_bounds() const;

    // Bilinear and always opaque, except onto the same size, which copies.
    void resample_into(Tile& target) const;
    void anti_alias();

    // The 3 by 3 pixels around (x, y); `match` is compared without alpha.
    void replace_near(int x, int y, Color match, Color color);
    void replace_alpha(std::uint8_t from, std::uint8_t to);
    // pixel = function(pixel), in index order.
    template <typename Function>
    void map_colours(Function function) {
        change_pixels([&](std::span<Color> pixels) {
            for (Color& pixel : pixels) {
                pixel = function(pixel);
            }
        });
    }
    // function(pixels) may change them all, in the order of `pixels`; it must not keep them.
    template <typename Function>
    void change_pixels(Function function) {
        function(std::span(pixels_));
        version_ = unknown_version;
    }

    // Four bytes a pixel: alpha, blue, green, red. Bytes or pixels without a partner are left alone.
    void read_pixels(std::span<const std::uint8_t> bytes);
    void write_pixels(std::span<std::uint8_t> bytes) const;

    // What no command needs, in tile_unreached.cpp.

    // This tile becomes the source changed; the source is another tile of the same size.
    // The two rotations leave a tile alone that is not square.
    void rotate_cw(const Tile& source);
    void rotate_ccw(const Tile& source);
    void mirror(const Tile& source);
    void flip(const Tile& source);
    // this(x, y) = source(x + dx, y + dy), wrapped around; for steps of at most one pixel.
    void shift_wrapped(const Tile& source, int dx, int dy);
    // Pixels with an alpha other than 0 get the given one.
    void paste_into_with_alpha(Tile& other, int dx, int dy, std::uint8_t alpha) const;
    // Where this tile is white the target takes the source's pixel, elsewhere it becomes transparent black.
    void mask_into(const Tile& source, Tile& target) const;
    // Whether a pixel of this tile that is not empty, placed at (dx, dy), leaves the target or meets one of
    // its pixels with an alpha other than 0.
    [[nodiscard]] bool overlaps(const Tile& target, int dx, int dy) const;
    // Pixels equal to the key, alpha aside, become transparent and all others opaque.
    void key_transparency(Color key);
    void blend_towards(Color color, double factor);
    // The target is twice as wide and high.
    void scale2x_into(Tile& target) const;

private:
    static constexpr std::uint64_t unknown_version = 0;

    [[nodiscard]] std::size_t offset(int x, int y) const {
        return static_cast<std::size_t>(x) + static_cast<std::size_t>(width_) * static_cast<std::size_t>(y);
    }

    int width_;
    int height_;
    std::vector<Color> pixels_;
    // Unknown since a change, until somebody asks: to write a pixel costs no count.
    mutable std::uint64_t version_ = unknown_version;
};

} // namespace quadrelle
