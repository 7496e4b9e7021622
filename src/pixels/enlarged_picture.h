#pragma once

// A picture as if it had been doubled three times by the scale-twice rule, which keeps its edges.

#include "pixels/tile.h"

#include <cstddef>

namespace quadrelle {

// One doubling is carried out; for the other two it is only looked at what the pixel asked for depends on.
class Enlarged_Picture {
public:
    static constexpr int scale = 8;

    explicit Enlarged_Picture(const Tile& picture);

    // The pixel must lie inside of the enlarged picture.
    [[nodiscard]] Color pixel(int x, int y) const {
        const Color* const doubled = pixel_of(doubled_, x / 4 + 2 * margin, y / 4 + 2 * margin);
        return is_plain(doubled) ? *doubled : pixel_within(doubled, x % 4, y % 4);
    }

private:
    // So far beyond the picture depends what is inside; there its outermost pixels go on.
    static constexpr int margin = 2;

    [[nodiscard]] static Tile framed(const Tile& picture);
    [[nodiscard]] static const Color* pixel_of(const Tile& picture, int x, int y) {
        return picture.pixels().data() + static_cast<std::ptrdiff_t>(y) * picture.width() + x;
    }
    void double_up(const Tile& picture);
    // Whether it stays of one colour however often it is doubled.
    [[nodiscard]] bool is_plain(const Color* pixel) const;
    // At (x, y) of the 4 x 4 pixels that one becomes by two doublings.
    [[nodiscard]] Color pixel_within(const Color* pixel, int x, int y) const;

    Tile doubled_;
};

} // namespace quadrelle
