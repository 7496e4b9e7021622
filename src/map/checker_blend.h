#pragma once

// Lays a row of pixels over the squares of the board as `blended_over` does, but without asking what each
// pixel is like: where opaque and translucent ones alternate, a wrong guess takes longer than the blending,
// and the compiler does several at once.

#include "color/translucency.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace quadrelle {

// Both colours of the board are grey. Returns how light it is at that point of it.
[[nodiscard]] constexpr std::uint32_t board_grey(int x, int y) {
    return checkerboard_color(x, y).g;
}
static_assert(standard_color(Standard_Color::checker_light).is_grey() &&
              standard_color(Standard_Color::checker_dark).is_grey());

// Both rows are of one length: the words of colours, which become opaque, and the greys of the board.
inline void lay_over_board(std::span<std::uint32_t> words, std::span<const std::uint32_t> greys) {
    // Two numbers of 16 bits, each divided by 255 and rounded down.
    const auto divided = [](std::uint32_t pair) {
        return (pair + 0x10001U + (pair >> 8U & 0xff00ffU)) >> 8U & 0xff00ffU;
    };
    std::uint32_t* const pixels = words.data();
    const std::uint32_t* const board = greys.data();
    const std::size_t count = words.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t alpha = pixels[i] >> 24U;
        const std::uint32_t red_and_blue = divided((pixels[i] & 0xff00ffU) * alpha);
        const std::uint32_t green = divided((pixels[i] >> 8U & 0xffU) * alpha);
        const std::uint32_t below = divided(board[i] * (255 - alpha));
        pixels[i] = (red_and_blue | green << 8U) + (below | below << 8U | below << 16U | 0xff000000U);
    }
}

} // namespace quadrelle
