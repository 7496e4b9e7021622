#include "pixels/thumbnail.h"

#include "color/translucency.h"
#include "pixels/tile.h"

#include <array>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr std::size_t edge = thumbnail_edge;

using Samples = std::array<std::size_t, edge>;

// Of each place along an edge the pixel that lies under its middle.
Samples samples_of(int extent) {
    Samples samples{};
    for (std::size_t i = 0; i < edge; ++i) {
        samples[i] = (2 * i + 1) * static_cast<std::size_t>(extent) / (2 * edge);
    }
    return samples;
}

} // namespace

void paint_thumbnail(const Tile& tile, Point position, const Pixel_Rows& target) {
    const Samples columns = samples_of(tile.width());
    const Samples rows = samples_of(tile.height());
    const bool is_blank = tile.pixel_count() == 0;
    for (int y = 0; y < thumbnail_edge; ++y) {
        Color* const shown = target.row(position.y + y) + position.x;
        const Color* const row =
            tile.pixels().data() + rows[static_cast<std::size_t>(y)] * static_cast<std::size_t>(tile.width());
        for (int x = 0; x < thumbnail_edge; ++x) {
            const Color color = is_blank ? Color(0, 0, 0, 0) : row[columns[static_cast<std::size_t>(x)]];
            shown[x] = color.a == 255 ? color : blended_over(color, checkerboard_color(x, y));
        }
    }
}

void paint_edge(const Rectangle& line, const Pixel_Rows& target) {
    constexpr double contrast = 48;
    for (int y = line.y; y < line.bottom(); ++y) {
        for (int x = line.x; x < line.right(); ++x) {
            Color& color = target.row(y)[x];
            color.brighten(color.is_dark() ? contrast : -contrast);
        }
    }
}

} // namespace quadrelle
