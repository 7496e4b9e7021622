#include "screen/region.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int square = 16; // edge in window pixels

} // namespace

Region::Region(Size window)
    : window_(window), squares_{(window.width + square - 1) / square, (window.height + square - 1) / square},
      is_inside_(static_cast<std::size_t>(squares_.width) * static_cast<std::size_t>(squares_.height)) {}

void Region::clear() {
    std::ranges::fill(is_inside_, std::uint8_t{0});
}

void Region::add(const Rectangle& area) {
    const Rectangle inside = intersection(area, {0, 0, window_.width, window_.height});
    if (inside.is_empty()) {
        return;
    }
    const int first = inside.x / square;
    const int count = (inside.right() - 1) / square - first + 1;
    for (int row = inside.y / square; row <= (inside.bottom() - 1) / square; ++row) {
        std::fill_n(is_inside_.begin() + static_cast<std::ptrdiff_t>(row) * squares_.width + first, count,
                    std::uint8_t{1});
    }
}

// Runs of squares in a row; a run as wide as one above it goes on with that one's rectangle.
std::vector<Rectangle> Region::rectangles() const {
    std::vector<Rectangle> found;
    for (int row = 0; row < squares_.height; ++row) {
        const auto begin = is_inside_.begin() + static_cast<std::ptrdiff_t>(row) * squares_.width;
        const auto end = begin + squares_.width;
        for (auto first = std::find(begin, end, 1); first != end;) {
            const auto last = std::find(first, end, 0);
            const Rectangle run{static_cast<int>(first - begin) * square, row * square,
                                static_cast<int>(last - first) * square, square};
            const auto grown = std::ranges::find_if(found, [&](const Rectangle& other) {
                return other.x == run.x && other.width == run.width && other.bottom() == run.y;
            });
            if (grown != found.end()) {
                grown->height += square;
            } else {
                found.push_back(run);
            }
            first = std::find(last, end, 1);
        }
    }
    for (Rectangle& area : found) {
        area = intersection(area, {0, 0, window_.width, window_.height});
    }
    return found;
}

} // namespace quadrelle
