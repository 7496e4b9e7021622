#include "map/map_surroundings.h"

#include <algorithm>
#include <span>
#include <utility>

namespace quadrelle {

namespace {

// Where in the cell the pixel of its tile shows.
Tile_Point in_cell(Tile_Point pixel, Orientation orientation, Size tile) {
    if (orientation.is_swapped && tile.width == tile.height) {
        std::swap(pixel.x, pixel.y);
    }
    return {orientation.is_mirrored ? tile.width - 1 - pixel.x : pixel.x,
            orientation.is_flipped ? tile.height - 1 - pixel.y : pixel.y};
}

// How many cells beside, and the pixel there.
std::pair<int, int> split(int pixel, int extent) {
    const int rest = (pixel % extent + extent) % extent;
    return {(pixel - rest) / extent, rest};
}

} // namespace

Color pixel_around(const Edited_Map& map, Tile_Pictures tiles, Size tile, Map_Point place, Tile_Point pixel) {
    const Tile_Point seen = in_cell(pixel, map.map().at(place).orientation(), tile);
    const auto [columns, x] = split(seen.x, tile.width);
    const auto [rows, y] = split(seen.y, tile.height);
    const Map_Cell cell = map.indexed(map.map().at({place.x + columns, place.y + rows}));
    const Oriented_Pixels pixels = pixels_of(cell, tiles);
    return pixels.first == nullptr ? Color{0, 0, 0, 0} : pixels.at(x, y);
}

std::optional<Map_Point> place_of(const Edited_Map& map, int tile, std::optional<Map_Point> preferred) {
    const int id = map.ids().known_id_of(tile);
    if (id < 0 || (preferred && map.map().at(*preferred).tile() == id)) {
        return id < 0 ? std::nullopt : preferred;
    }
    const auto cells = map.map().cells();
    const auto found = std::ranges::find(cells, id, &Map_Cell::tile);
    if (found == cells.end()) {
        return std::nullopt;
    }
    const int place = static_cast<int>(found - cells.begin());
    return Map_Point{place % map.map().size().width, place / map.map().size().width};
}

Tile picture_around(const Edited_Map& map, Tile_Pictures tiles, Size tile, Map_Point place, int margin) {
    Tile picture(tile.width + 2 * margin, tile.height + 2 * margin);
    picture.change_pixels([&](std::span<Color> pixels) {
        auto pixel = pixels.begin();
        for (int y = -margin; y < tile.height + margin; ++y) {
            for (int x = -margin; x < tile.width + margin; ++x) {
                const bool is_inside = x >= 0 && y >= 0 && x < tile.width && y < tile.height;
                *pixel++ = is_inside ? Color{0, 0, 0, 0} : pixel_around(map, tiles, tile, place, {x, y});
            }
        }
    });
    return picture;
}

} // namespace quadrelle
