#pragma once

// Lays pixels over the squares of the board as `blended_over` does, but without asking what each pixel is
// like: where opaque and translucent ones alternate, a wrong guess takes longer than the blending.

#include "color/translucency.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace quadrelle {

// Returns the number of the colour of the board, 0 or 1, at that point of it.
[[nodiscard]] constexpr std::uint8_t checker_at(int x, int y) {
    return checkerboard_color(x, y) == standard_color(Standard_Color::checker_light) ? 1 : 0;
}

namespace checker_blend {

using Words = std::array<std::array<std::uint32_t, 256>, 2>;

// What shows of each of both colours below each alpha.
constexpr Words below = [] {
    Words words{};
    for (int alpha = 0; alpha < 256; ++alpha) {
        const auto index = static_cast<std::size_t>(alpha);
        const Color nothing(0, 0, 0, alpha);
        words[0][index] = blended_over(nothing, standard_color(Standard_Color::checker_dark)).word();
        words[1][index] = blended_over(nothing, standard_color(Standard_Color::checker_light)).word();
    }
    return words;
}();

// Two numbers of 16 bits, each divided by 255 and rounded down.
[[nodiscard]] constexpr std::uint32_t divided(std::uint32_t pair) {
    return (pair + 0x10001U + (pair >> 8U & 0xff00ffU)) >> 8U & 0xff00ffU;
}

} // namespace checker_blend

[[nodiscard]] constexpr Color over_checker(Color color, std::uint8_t checker) {
    const std::uint32_t word = color.word();
    const std::uint32_t alpha = word >> 24U;
    const std::uint32_t red_and_blue = checker_blend::divided((word & 0xff00ffU) * alpha);
    const std::uint32_t green = checker_blend::divided((word >> 8U & 0xffU) * alpha);
    return Color::from_word((red_and_blue | green << 8U) + checker_blend::below[checker][alpha]);
}

} // namespace quadrelle
