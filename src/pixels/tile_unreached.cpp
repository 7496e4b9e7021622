// Operations that no command of the program needs now. They belong to what a tile offers, and are kept
// together here so that nobody looks for their callers.

#include "pixels/tile.h"
#include "pixels/turn_and_mirror.h"

namespace quadrelle {

namespace {

// Right for positions at most one pixel outside: past the far edge comes 0, deliberately not a remainder.
int wrapped(int position, int length) {
    if (position < 0) {
        return position + length;
    }
    return position >= length ? 0 : position;
}

} // namespace

void Tile::rotate_cw(const Tile& source) {
    if (turned_right.fits(size())) {
        place(source, *this, turned_right);
    }
}

void Tile::rotate_ccw(const Tile& source) {
    if (turned_left.fits(size())) {
        place(source, *this, turned_left);
    }
}

void Tile::mirror(const Tile& source) {
    place(source, *this, mirrored);
}

void Tile::flip(const Tile& source) {
    place(source, *this, flipped);
}

void Tile::shift_wrapped(const Tile& source, int dx, int dy) {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            set_pixel(x, y, source.get_pixel(wrapped(x + dx, width_), wrapped(y + dy, height_)));
        }
    }
}

void Tile::paste_into_with_alpha(Tile& other, int dx, int dy, std::uint8_t alpha) const {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            Color color = get_pixel(x, y);
            color.a = color.a == 0 ? color.a : alpha;
            other.set_pixel(dx + x, dy + y, color);
        }
    }
}

void Tile::mask_into(const Tile& source, Tile& target) const {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            target.set_pixel(x, y, is_white_at(x, y) ? source.get_pixel(x, y) : Color{0, 0, 0, 0});
        }
    }
}

bool Tile::overlaps(const Tile& target, int dx, int dy) const {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            const bool is_taken = target.is_outside(dx + x, dy + y) || target.alpha_at(dx + x, dy + y) != 0;
            if (is_taken && !is_empty_at(x, y)) {
                return true;
            }
        }
    }
    return false;
}

void Tile::key_transparency(Color key) {
    map_colours([=](Color pixel) {
        pixel.a = pixel.same_rgb(key) ? 0 : 255;
        return pixel;
    });
}

void Tile::blend_towards(Color color, double factor) {
    map_colours([=](Color pixel) {
        pixel.blend(color, factor);
        return pixel;
    });
}

void Tile::scale2x_into(Tile& target) const {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            const Color pixel = get_pixel(x, y);
            const Color above = get_pixel_clamped(x, y - 1);
            const Color right = get_pixel_clamped(x + 1, y);
            const Color below = get_pixel_clamped(x, y + 1);
            const Color left = get_pixel_clamped(x - 1, y);
            const bool is_corner = !above.same_rgb(below) && !left.same_rgb(right);
            const auto choose = [&](Color side, Color other) {
                return is_corner && side.same_rgb(other) ? side : pixel;
            };
            target.set_pixel(2 * x, 2 * y, choose(left, above));
            target.set_pixel(2 * x + 1, 2 * y, choose(above, right));
            target.set_pixel(2 * x, 2 * y + 1, choose(left, below));
            target.set_pixel(2 * x + 1, 2 * y + 1, choose(below, right));
        }
    }
}

} // namespace quadrelle
