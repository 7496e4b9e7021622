#include "map/map_surroundings.h"

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

} // namespace quadrelle
