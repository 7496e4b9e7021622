#pragma once

// The one colour value of tiles, tools, palettes and the interface, and its arithmetic.

#include "color/bounded_value.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace quadrelle {

// Its four channels go from 0 to 255; alpha 255 is opaque. In memory they stand as blue, green, red, alpha:
// the 32-bit word 0xAARRGGBB.
struct Color {
    std::uint8_t b = 0;
    std::uint8_t g = 0;
    std::uint8_t r = 0;
    std::uint8_t a = 255;

    constexpr Color() = default;
    constexpr Color(int red, int green, int blue, int alpha = 255)
        : b(static_cast<std::uint8_t>(blue)), g(static_cast<std::uint8_t>(green)),
          r(static_cast<std::uint8_t>(red)), a(static_cast<std::uint8_t>(alpha)) {}

    // The word is 0xAARRGGBB.
    [[nodiscard]] static constexpr Color from_word(std::uint32_t word);
    [[nodiscard]] constexpr std::uint32_t word() const;

    // Compares all four channels, as one word; `same_rgb` ignores alpha.
    constexpr bool operator==(const Color& other) const {
        return std::bit_cast<std::uint32_t>(*this) == std::bit_cast<std::uint32_t>(other);
    }
    [[nodiscard]] constexpr bool same_rgb(Color other) const {
        return r == other.r && g == other.g && b == other.b;
    }

    constexpr void set(int red, int green, int blue, int alpha) { *this = Color(red, green, blue, alpha); }
    constexpr void set_rgb(int red, int green, int blue) { *this = Color(red, green, blue, a); }
    // Makes it transparent black.
    constexpr void clear() { *this = Color(0, 0, 0, 0); }

    // Index 0 is red, 1 green, 2 blue; every other one is alpha.
    [[nodiscard]] constexpr std::uint8_t channel(int index) const;
    [[nodiscard]] constexpr std::uint8_t max_channel() const { return std::max({r, g, b}); }
    [[nodiscard]] constexpr std::uint8_t min_channel() const { return std::min({r, g, b}); }
    [[nodiscard]] constexpr bool is_grey() const { return r == g && g == b; }

    // These wrap around at 256 on purpose.
    constexpr void add(int red, int green, int blue, int alpha);
    constexpr void add_rgb(int red, int green, int blue) { add(red, green, blue, 0); }
    // Adds to the channel of that index within 0 to 255. Returns 0, or -1 when it met a bound.
    constexpr int add_clamped(int index, int amount);

    constexpr void invert() { set_rgb(255 - r, 255 - g, 255 - b); }

    // These change red, green and blue by the same amount within 0 to 255 and truncate the sums.
    constexpr void brighten(double amount) { shift(amount, amount, amount); }
    constexpr void darken(double amount) { brighten(-amount); }
    // These weigh each channel as the eye does. The weight of blue is no misprint of 0.114: the weights
    // sum to 1.03 deliberately.
    constexpr void brighten_weighted(double amount) { shift(0.299 * amount, 0.587 * amount, 0.144 * amount); }
    constexpr void darken_weighted(double amount) { brighten_weighted(-amount); }

    // Takes half of this and half of the other, truncated, and the other's alpha.
    constexpr void average(Color other);
    // Takes the share `own` (0 to 1) of this and the rest of the other, truncated, and the other's alpha.
    constexpr void blend(Color other, double own);
    // Keeps the length of (red, green, blue) and takes the other's direction; toward black it is black.
    void match_direction(Color other);

    // Returns the relative luminance as sRGB defines it, 0 to 1.
    [[nodiscard]] double luminance() const;
    // Whether it is darker to the eye than the middle between black and white.
    [[nodiscard]] bool is_dark() const;

private:
    [[nodiscard]] constexpr std::uint8_t& channel_at(int index);
    constexpr void shift(double red, double green, double blue);
};

static_assert(sizeof(Color) == 4);

constexpr Color Color::from_word(std::uint32_t word) {
    return {static_cast<int>(word >> 16U & 255U), static_cast<int>(word >> 8U & 255U),
            static_cast<int>(word & 255U), static_cast<int>(word >> 24U)};
}

constexpr std::uint32_t Color::word() const {
    return std::uint32_t{a} << 24U | std::uint32_t{r} << 16U | std::uint32_t{g} << 8U | std::uint32_t{b};
}

constexpr std::uint8_t Color::channel(int index) const {
    return Color(*this).channel_at(index);
}

constexpr std::uint8_t& Color::channel_at(int index) {
    switch (index) {
    case 0: return r;
    case 1: return g;
    case 2: return b;
    default: return a;
    }
}

constexpr void Color::add(int red, int green, int blue, int alpha) {
    const auto wrapped = [](std::uint8_t channel, int amount) {
        return static_cast<std::uint8_t>(channel + static_cast<unsigned>(amount));
    };
    r = wrapped(r, red);
    g = wrapped(g, green);
    b = wrapped(b, blue);
    a = wrapped(a, alpha);
}

constexpr int Color::add_clamped(int index, int amount) {
    std::uint8_t& target = channel_at(index);
    const int sum = target + std::clamp(amount, -256, 256);
    target = clamped_channel(sum);
    return sum == target ? 0 : -1;
}

constexpr void Color::average(Color other) {
    *this = {(r + other.r) / 2, (g + other.g) / 2, (b + other.b) / 2, other.a};
}

constexpr void Color::blend(Color other, double own) {
    const double rest = 1.0 - own;
    r = truncated_channel(r * own + other.r * rest);
    g = truncated_channel(g * own + other.g * rest);
    b = truncated_channel(b * own + other.b * rest);
    a = other.a;
}

constexpr void Color::shift(double red, double green, double blue) {
    r = truncated_channel(r + red);
    g = truncated_channel(g + green);
    b = truncated_channel(b + blue);
}

} // namespace quadrelle
