#pragma once

// An image in memory whose pixels the program reads and writes: loaded bitmaps and images being built.

#include "base/geometry.h"
#include "color/color.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct SDL_Surface;

namespace quadrelle {

// Red, green, blue, alpha: the byte order of the surface operations.
struct Rgba_Quad {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    std::uint8_t a = 0;

    bool operator==(const Rgba_Quad&) const = default;
};

[[nodiscard]] constexpr Rgba_Quad to_rgba(Color color) {
    return {color.r, color.g, color.b, color.a};
}

constexpr Rgba_Quad default_color_key{255, 0, 255, 255};

class Surface {
public:
    // An empty, transparent surface. Fatal when it cannot be made.
    explicit Surface(Size size);
    // A bitmap file (name in UTF-8) whose pixels become opaque, or transparent where red, green and blue
    // equal those of the key. A bitmap that cannot be loaded is fatal.
    explicit Surface(const std::string& file_name, std::optional<Rgba_Quad> key = std::nullopt);

    void set_color_key(std::uint8_t r, std::uint8_t g, std::uint8_t b);
    void blit_to(Surface& destination, const Rectangle& from, const Rectangle& to) const;
    void fill(Rgba_Quad color);
    void fill_rect(const Rectangle& area, Rgba_Quad color);
    void fill_rect(const Rectangle& area, Color color) { fill_rect(area, to_rgba(color)); }
    // Outside the surface nothing happens.
    void set_pixel(int x, int y, Rgba_Quad color);
    // Outside the surface: opaque magenta.
    [[nodiscard]] Rgba_Quad get_pixel(int x, int y) const;

    [[nodiscard]] Size size() const { return size_; }
    // Returns the pixels of one row from the left.
    [[nodiscard]] const Color* row(int y) const;

private:
    struct Deleter {
        void operator()(SDL_Surface* surface) const;
    };
    using Handle = std::unique_ptr<SDL_Surface, Deleter>;

    [[nodiscard]] bool contains(int x, int y) const;
    [[nodiscard]] std::uint32_t* pixel(int x, int y) const;
    void make(Size size);
    void take_bitmap(SDL_Surface& bitmap);
    void apply_key(std::optional<Rgba_Quad> key);

    Size size_;
    Handle surface_;
};

} // namespace quadrelle
