#pragma once

// Draws a tile strip: its tiles as thumbnails, the free places behind them, the mark of the current tile.

#include "screen/opaque_texture.h"
#include "tileset/tile_strip.h"

#include <array>
#include <cstdint>
#include <optional>

namespace quadrelle {

class Tile_Strip_Picture {
public:
    // The screen must be there.
    Tile_Strip_Picture();

    void draw(const Tile_Strip& strip);

private:
    void update_cell(const Tile_Strip& strip, int cell);

    Opaque_Texture texture_;
    // Of the tiles as they are shown; nothing is shown at first.
    std::array<std::optional<std::uint64_t>, Tile_Strip::visible_cells> shown_versions_;
};

// Returns the index of the tile that the strip shows at `point`, or -1.
[[nodiscard]] int tile_at(const Tile_Strip& strip, Point point);

} // namespace quadrelle
