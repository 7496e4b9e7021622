#include "map/oriented_tile.h"

#include <cstdint>
#include <utility>

namespace quadrelle {

namespace {

constexpr Color nothing{0, 0, 0, 0};

} // namespace

Oriented_Pixels oriented(const Tile& tile, Orientation orientation) {
    const std::ptrdiff_t width = tile.width();
    Oriented_Pixels pixels{tile.pixels().data(), 1, width};
    if (orientation.is_swapped && tile.width() == tile.height()) {
        std::swap(pixels.step_x, pixels.step_y);
    }
    if (orientation.is_mirrored) {
        pixels.first += pixels.step_x * (width - 1);
        pixels.step_x = -pixels.step_x;
    }
    if (orientation.is_flipped) {
        pixels.first += pixels.step_y * (tile.height() - 1);
        pixels.step_y = -pixels.step_y;
    }
    return pixels;
}

Oriented_Pixels pixels_of(Map_Cell cell, Tile_Pictures tiles) {
    const int index = cell.tile();
    if (index < 0 || index >= static_cast<int>(tiles.size())) {
        return {};
    }
    return oriented(*tiles[static_cast<std::size_t>(index)], cell.orientation());
}

Cell_Pixels::Cell_Pixels(Tile_Pictures tiles) {
    for (const Tile* tile : tiles) {
        first_pixels_.push_back(tile->pixels().data());
    }
    first_pixels_.push_back(&nothing);
    for (std::uint32_t i = 0; i < steps_.size() && !tiles.empty(); ++i) {
        const Map_Cell cell = Map_Cell::of_word((i << 29U) | 1U);
        const Oriented_Pixels pixels = oriented(*tiles.front(), cell.orientation());
        steps_[i] = {pixels.first - first_pixels_.front(), pixels.step_x, pixels.step_y};
    }
}

Cell_Pixels::Lines::Lines(const Cell_Pixels& pixels, int y) : tiles_(pixels.first_pixels_) {
    for (std::size_t i = 0; i < pixels.steps_.size(); ++i) {
        const Orientation_Steps& steps = pixels.steps_.at(i);
        first_.at(i) = steps.first + y * steps.step_y;
        step_.at(i) = steps.step_x;
    }
}

} // namespace quadrelle
