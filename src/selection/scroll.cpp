#include "selection/scroll.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quadrelle {

namespace {

// The last `offset` of the pixels come first, or the first ones last where negative.
void rotate_line(std::vector<Color>& line, int offset) {
    const auto length = static_cast<int>(line.size());
    if (length > 0) {
        const int first = ((-offset % length) + length) % length;
        std::rotate(line.begin(), line.begin() + first, line.end());
    }
}

template <typename Takes_Part>
void scroll_lines(Tile& tile, Size lines, int offset, bool is_row, Takes_Part takes_part) {
    std::vector<Tile_Point> places;
    std::vector<Color> colors;
    for (int line = 0; line < lines.height; ++line) {
        places.clear();
        colors.clear();
        for (int i = 0; i < lines.width; ++i) {
            const Tile_Point pixel = is_row ? Tile_Point{i, line} : Tile_Point{line, i};
            if (takes_part(pixel)) {
                places.push_back(pixel);
                colors.push_back(tile.get_pixel(pixel.x, pixel.y));
            }
        }
        rotate_line(colors, offset);
        for (std::size_t i = 0; i < places.size(); ++i) {
            tile.set_pixel(places[i].x, places[i].y, colors[i]);
        }
    }
}

template <typename Takes_Part>
void scroll_both_ways(Tile& tile, Tile_Point offset, Takes_Part takes_part) {
    if (offset.x != 0) {
        scroll_lines(tile, tile.size(), offset.x, true, takes_part);
    }
    if (offset.y != 0) {
        scroll_lines(tile, {tile.height(), tile.width()}, offset.y, false, takes_part);
    }
}

} // namespace

void scroll_wrapped(Tile& tile, Tile_Point offset) {
    scroll_both_ways(tile, offset, [](Tile_Point) { return true; });
}

void scroll_selected(Tile& tile, const Selection& selection, Tile_Point offset) {
    scroll_both_ways(tile, offset, [&](Tile_Point pixel) { return selection.contains(pixel); });
}

} // namespace quadrelle
