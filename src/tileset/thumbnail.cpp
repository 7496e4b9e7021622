#include "tileset/thumbnail.h"

#include "app/canvas_painter.h"
#include "color/standard_colors.h"
#include "tileset/tile.h"

#include <array>

namespace quadrelle {

namespace {

constexpr int checker_square = 6;

using Samples = std::array<int, thumbnail_edge>;

// Of each place along an edge the pixel that lies under its middle.
Samples samples_of(int extent) {
    Samples samples{};
    for (int i = 0; i < thumbnail_edge; ++i) {
        samples[static_cast<std::size_t>(i)] = (2 * i + 1) * extent / (2 * thumbnail_edge);
    }
    return samples;
}

Color checker_at(int x, int y) {
    const bool is_light = (x / checker_square + y / checker_square) % 2 != 0;
    return standard_color(is_light ? Standard_Color::checker_light : Standard_Color::checker_dark);
}

} // namespace

void paint_thumbnail(const Tile& tile, Point position, const Pixel_Rows& target) {
    const Samples columns = samples_of(tile.width());
    const Samples rows = samples_of(tile.height());
    const bool is_blank = tile.pixel_count() == 0;
    for (int y = 0; y < thumbnail_edge; ++y) {
        Color* const shown = target.row(position.y + y) + position.x;
        const Color* const row =
            is_blank
                ? nullptr
                : &tile.pixels()[static_cast<std::size_t>(tile.width() * rows[static_cast<std::size_t>(y)])];
        for (int x = 0; x < thumbnail_edge; ++x) {
            const Color color = is_blank ? Color(0, 0, 0, 0) : row[columns[static_cast<std::size_t>(x)]];
            shown[x] = color.a == 255 ? color : blended_over(color, checker_at(x, y));
        }
    }
}

} // namespace quadrelle
