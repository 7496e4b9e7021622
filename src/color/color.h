#pragma once

// The one colour value of tiles, tools, palettes and the interface, and its arithmetic.

#include <array>
#include <cstdint>

namespace quadrelle {

// Four channels 0 to 255, alpha 255 opaque. In memory blue, green, red, alpha: the 32-bit word 0xAARRGGBB.
struct Color {
    std::uint8_t b = 0;
    std::uint8_t g = 0;
    std::uint8_t r = 0;
    std::uint8_t a = 255;

    constexpr Color() = default;
    constexpr Color(int red, int green, int blue, int alpha = 255)
        : b(static_cast<std::uint8_t>(blue)), g(static_cast<std::uint8_t>(green)),
          r(static_cast<std::uint8_t>(red)), a(static_cast<std::uint8_t>(alpha)) {}

    // All four channels; `same_rgb` is the comparison that ignores alpha.
    constexpr bool operator==(const Color&) const = default;
};

} // namespace quadrelle
