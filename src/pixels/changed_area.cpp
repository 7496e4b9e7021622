#include "pixels/changed_area.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace quadrelle {

namespace {

struct Span {
    int start = 0;
    int end = 0;
};

// The rows differ somewhere.
Span changed_part(std::span<const Color> row, std::span<const Color> copy) {
    const auto differs_at = [&](int x) {
        return row[static_cast<std::size_t>(x)] != copy[static_cast<std::size_t>(x)];
    };
    Span part{0, static_cast<int>(row.size())};
    while (!differs_at(part.start)) {
        ++part.start;
    }
    while (!differs_at(part.end - 1)) {
        --part.end;
    }
    return part;
}

} // namespace

Rectangle update_copy(std::span<const Color> pixels, Size size, std::span<Color> copy) {
    const auto width = static_cast<std::size_t>(size.width);
    Rectangle changed;
    if (pixels.empty()) {
        return changed;
    }
    for (int y = 0; y < size.height; ++y) {
        const std::size_t start = static_cast<std::size_t>(y) * width;
        const std::span<const Color> from = pixels.subspan(start, width);
        const std::span<Color> to = copy.subspan(start, width);
        if (std::memcmp(from.data(), to.data(), from.size_bytes()) != 0) {
            const Span part = changed_part(from, to);
            changed = bounds_of(changed, {part.start, y, part.end - part.start, 1});
            std::ranges::copy(from, to.begin());
        }
    }
    return changed;
}

} // namespace quadrelle
