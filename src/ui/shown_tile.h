#pragma once

// What shows tiles at one place of the window. Keeps a texture and brings it up to date by itself whenever
// the tile to draw is another one or has changed.

#include "base/geometry.h"
#include "screen/streaming_texture.h"

#include <cstdint>
#include <optional>

namespace quadrelle {

class Tile;

class Shown_Tile {
public:
    // Draws the nearest pixels, and what is translucent over what is there.
    void draw(const Tile& tile, const Rectangle& destination);
    // Draws the part `source` of the tile.
    void draw_part(const Tile& tile, const Rectangle& source, const Rectangle& destination);

private:
    void update_texture(const Tile& tile);

    std::optional<Streaming_Texture> texture_;
    std::uint64_t version_ = 0; // of the tile whose pixels the texture has
};

} // namespace quadrelle
