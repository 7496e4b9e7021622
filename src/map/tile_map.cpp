#include "map/tile_map.h"

#include <algorithm>

namespace quadrelle {

Tile_Map::Tile_Map(Size size)
    : size_(size), cells_(std::make_shared<Cells>(static_cast<std::size_t>(size.width) *
                                                  static_cast<std::size_t>(size.height))) {}

Tile_Map Tile_Map::resized(const Map_Sides& sides) const {
    Tile_Map result(quadrelle::resized(size_, sides));
    const Rectangle kept =
        intersection(area(), {-sides.left, -sides.top, result.size_.width, result.size_.height});
    for (int y = kept.y; y < kept.bottom(); ++y) {
        const auto from =
            row(y).subspan(static_cast<std::size_t>(kept.x), static_cast<std::size_t>(kept.width));
        std::ranges::copy(
            from, result.cells().subspan(result.offset({kept.x + sides.left, y + sides.top})).begin());
    }
    return result;
}

} // namespace quadrelle
