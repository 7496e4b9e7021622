#pragma once

// A picture before, something drawn on it, the picture after.

#include "tests/support/tile_art.h"
#include "tools/drawing_target.h"

namespace quadrelle::testing {

// A picture of opaque black.
inline Art blank(int width, int height) {
    return Art(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), '.'));
}

template <typename Draw>
Art drawn(const Art& before, Draw draw) {
    Tile tile = make_tile(before);
    Drawing_Target target(tile);
    draw(target);
    return art(tile);
}

// The same, with the white pixels of the mask selected.
template <typename Draw>
Art drawn(const Art& before, const Art& selection, Draw draw) {
    Tile tile = make_tile(before);
    const Tile mask = make_tile(selection);
    Drawing_Target target(tile, mask);
    draw(target);
    return art(tile);
}

} // namespace quadrelle::testing
