#pragma once

// Draws a tile strip: its tiles as thumbnails, the free places behind them, the mark of the current tile.

#include "screen/opaque_texture.h"

namespace quadrelle {

class Tile_Strip;

class Tile_Strip_Picture {
public:
    // The screen must be there.
    Tile_Strip_Picture();

    void draw(const Tile_Strip& strip);

private:
    Opaque_Texture texture_;
};

// Returns the index of the tile that the strip shows at `point`, or -1.
[[nodiscard]] int tile_at(const Tile_Strip& strip, Point point);

} // namespace quadrelle
