#include "tileset/thumbnail.h"

#include "app/canvas_painter.h"
#include "color/standard_colors.h"
#include "tileset/tile.h"

#include <array>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr std::size_t edge = thumbnail_edge;
constexpr std::size_t checker_square = 6;

using Samples = std::array<std::size_t, edge>;

// Of each place along an edge the pixel that lies under its middle.
Samples samples_of(int extent) {
    Samples samples{};
    for (std::size_t i = 0; i < edge; ++i) {
        samples[i] = (2 * i + 1) * static_cast<std::size_t>(extent) / (2 * edge);
    }
    return samples;
}

Color checker_at(std::size_t x, std::size_t y) {
    const bool is_light = (x / checker_square + y / checker_square) % 2 != 0;
    return standard_color(is_light ? Standard_Color::checker_light : Standard_Color::checker_dark);
}

} // namespace

void paint_thumbnail(const Tile& tile, Point position, const Pixel_Rows& target) {
    const Samples columns = samples_of(tile.width());
    const Samples rows = samples_of(tile.height());
    const bool is_blank = tile.pixel_count() == 0;
    for (std::size_t y = 0; y < edge; ++y) {
        Color* const shown = target.row(position.y + static_cast<int>(y)) + position.x;
        const Color* const row = tile.pixels().data() + rows[y] * static_cast<std::size_t>(tile.width());
        for (std::size_t x = 0; x < edge; ++x) {
            const Color color = is_blank ? Color(0, 0, 0, 0) : row[columns[x]];
            shown[x] = color.a == 255 ? color : blended_over(color, checker_at(x, y));
        }
    }
}

} // namespace quadrelle
