#include "pixels/turn_and_mirror.h"

#include "pixels/tile.h"

namespace quadrelle {

void place(const Tile& source, Tile& target, const Placement& placement) {
    for (int y = 0; y < target.height(); ++y) {
        for (int x = 0; x < target.width(); ++x) {
            const Tile_Point origin = placement.origin({x, y}, target.size());
            target.set_pixel(x, y, source.get_pixel(origin.x, origin.y));
        }
    }
}

Tile placed(const Tile& source, const Placement& placement) {
    const Size size = placement.size_after(source.size());
    Tile result(size.width, size.height);
    place(source, result, placement);
    return result;
}

} // namespace quadrelle
