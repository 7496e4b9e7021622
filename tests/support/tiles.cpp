#include "tests/support/tiles.h"

namespace quadrelle::testing {

Color art_color(char mark) {
    switch (mark) {
    case '.': return black;
    case ' ': return clear;
    case '#': return white;
    default: return {mark, 7 * mark % 256, 255 - mark};
    }
}

Tile make_tile(const Art& rows) {
    Tile tile(rows.empty() ? 0 : static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            tile.set_pixel(x, y, art_color(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
        }
    }
    return tile;
}

namespace {

char art_mark(Color color) {
    for (const char mark : std::string(". #abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ")) {
        if (art_color(mark) == color) {
            return mark;
        }
    }
    return '?';
}

} // namespace

Art art(const Tile& tile) {
    Art rows(static_cast<std::size_t>(tile.height()));
    for (int i = 0; i < tile.pixel_count(); ++i) {
        rows[static_cast<std::size_t>(i / tile.width())] += art_mark(tile.get_pixel_at(i));
    }
    return rows;
}

Art blank(int width, int height) {
    return Art(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), '.'));
}

Art drawn(const Art& before, const std::function<void(Drawing_Target&)>& draw) {
    Tile tile = make_tile(before);
    Drawing_Target target(tile);
    draw(target);
    return art(tile);
}

Art drawn(const Art& before, const Art& selection, const std::function<void(Drawing_Target&)>& draw) {
    Tile tile = make_tile(before);
    const Tile mask = make_tile(selection);
    Drawing_Target target(tile, mask);
    draw(target);
    return art(tile);
}

Tile_Picture picture_of(const Tile& tile) {
    return {tile.pixels().begin(), tile.pixels().end()};
}

Tile random_tile(Size size, std::mt19937& random) {
    Tile tile(size.width, size.height);
    tile.map_colours([&](Color) { return Color::from_word(static_cast<std::uint32_t>(random())); });
    return tile;
}

Tile random_tile(Size size, unsigned seed) {
    std::mt19937 random(seed);
    return random_tile(size, random);
}

} // namespace quadrelle::testing
