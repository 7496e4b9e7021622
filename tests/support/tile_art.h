#pragma once

// Tiles as rows of characters: '.' opaque black, ' ' transparent black, '#' white, letters colours of their
// own.

#include "pixels/tile.h"

#include <string>
#include <vector>

namespace quadrelle::testing {

using Art = std::vector<std::string>;

inline Color art_color(char mark) {
    switch (mark) {
    case '.': return {};
    case ' ': return {0, 0, 0, 0};
    case '#': return {255, 255, 255};
    default: return {mark, 7 * mark % 256, 255 - mark};
    }
}

inline Tile make_tile(const Art& rows) {
    Tile tile(rows.empty() ? 0 : static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            tile.set_pixel(x, y, art_color(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
        }
    }
    return tile;
}

inline char art_mark(Color color) {
    for (const char mark : std::string(". #abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ")) {
        if (art_color(mark) == color) {
            return mark;
        }
    }
    return '?';
}

inline Art art(const Tile& tile) {
    Art rows(static_cast<std::size_t>(tile.height()));
    for (int i = 0; i < tile.pixel_count(); ++i) {
        rows[static_cast<std::size_t>(i / tile.width())] += art_mark(tile.get_pixel_at(i));
    }
    return rows;
}

} // namespace quadrelle::testing
