#include "selection/floating_paste.h"

#include <array>
#include <utility>

namespace quadrelle {

namespace {

// Rounded, in units of 1 / 255 of `weight`.
int mixed(int above, int above_weight, int below, int below_weight) {
    const int weight = above_weight + below_weight;
    return (above * above_weight + below * below_weight + weight / 2) / weight;
}

// In pixels of the tile.
Rectangle part_inside(const Floating_Paste& paste, Size tile) {
    return intersection({paste.position.x, paste.position.y, paste.picture->width(), paste.picture->height()},
                        {0, 0, tile.width, tile.height});
}

} // namespace

Color laid_over(Color color, Color below) {
    if (color.a == 255 || below.a == 0) {
        return color.a == 0 ? below : color;
    }
    if (color.a == 0) {
        return below;
    }
    const int above_weight = color.a * 255;
    const int below_weight = below.a * (255 - color.a);
    return {mixed(color.r, above_weight, below.r, below_weight),
            mixed(color.g, above_weight, below.g, below_weight),
            mixed(color.b, above_weight, below.b, below_weight), (above_weight + below_weight + 127) / 255};
}

std::optional<Color> Floating_Paste::pixel_over(Tile_Point tile_pixel) const {
    const int x = tile_pixel.x - position.x;
    const int y = tile_pixel.y - position.y;
    if (picture->is_outside(x, y) || picture->alpha_at(x, y) == 0) {
        return std::nullopt;
    }
    return picture->get_pixel(x, y);
}

Selection Floating_Paste::area(Size tile) const {
    const Rectangle part = part_inside(*this, tile);
    Selection selection(tile);
    selection.change([&](Tile& mask) {
        for (int y = part.y; y < part.bottom(); ++y) {
            for (int x = part.x; x < part.right(); ++x) {
                if (picture->alpha_at(x - position.x, y - position.y) != 0) {
                    mask.set_pixel(x, y, Selection::selected_color);
                }
            }
        }
    });
    return selection;
}

void Floating_Paste::plot(Drawing_Target& target) const {
    const Rectangle part = part_inside(*this, target.size());
    for (int y = part.y; y < part.bottom(); ++y) {
        for (int x = part.x; x < part.right(); ++x) {
            const Color pixel = picture->get_pixel(x - position.x, y - position.y);
            if (pixel.a != 0) {
                target.plot({x, y}, laid_over(pixel, target.get({x, y})));
            }
        }
    }
}

namespace {

// Of the pixels around it that are not transparent; its own colour where there are none.
Color color_nearby(const Tile& picture, int x, int y) {
    int count = 0;
    std::array<int, 3> sums{};
    for (int near_y = y - 1; near_y <= y + 1; ++near_y) {
        for (int near_x = x - 1; near_x <= x + 1; ++near_x) {
            const Color pixel = picture.get_pixel(near_x, near_y);
            if (pixel.a != 0) {
                ++count;
                sums = {sums[0] + pixel.r, sums[1] + pixel.g, sums[2] + pixel.b};
            }
        }
    }
    return count == 0 ? picture.get_pixel(x, y) : Color(sums[0] / count, sums[1] / count, sums[2] / count, 0);
}

} // namespace

void fill_opaque(Tile& picture, Color color) {
    picture.map_colours([color](Color pixel) { return pixel.a == 0 ? pixel : color; });
}

// Softening looks no further than at the neighbours of a pixel, so that those are all that need a colour.
Tile softened(const Tile& picture) {
    Tile result(picture);
    for (int i = 0; i < picture.pixel_count(); ++i) {
        if (picture.get_pixel_at(i).a == 0) {
            result.set_pixel_at(i, color_nearby(picture, i % picture.width(), i / picture.width()));
        }
    }
    result.anti_alias();
    for (int i = 0; i < picture.pixel_count(); ++i) {
        const Color before = picture.get_pixel_at(i);
        Color pixel = result.get_pixel_at(i);
        pixel.a = before.a;
        result.set_pixel_at(i, before.a == 0 ? before : pixel);
    }
    return result;
}

Floating_Paste lifted(const Tile& tile, const Selection& selection) {
    const Rectangle bounds = selection.bounds();
    Tile picture(bounds.width, bounds.height);
    picture.fill(Selection::unselected_color);
    for (int y = 0; y < bounds.height; ++y) {
        for (int x = 0; x < bounds.width; ++x) {
            const Tile_Point pixel{bounds.x + x, bounds.y + y};
            if (selection.contains(pixel)) {
                picture.set_pixel(x, y, tile.get_pixel(pixel.x, pixel.y));
            }
        }
    }
    return {std::move(picture), {bounds.x, bounds.y}};
}

void clear_selected(Tile& tile, const Selection& selection) {
    for (int i = 0; i < tile.pixel_count(); ++i) {
        if (selection.mask().get_pixel_at(i) == Selection::selected_color) {
            tile.set_pixel_at(i, {0, 0, 0, 0});
        }
    }
}

} // namespace quadrelle
