#include "selection/free_rotation.h"

#include <cmath>
#include <cstdlib>
#include <numbers>

namespace quadrelle {

namespace {

constexpr Color transparent{0, 0, 0, 0};

// The picture is sampled as if it had been doubled so often by the scale-twice rule, which keeps its edges.
constexpr int doublings = 3;

// Black is not what a transparent pixel shows, although that may be black as well.
bool looks_same(Color pixel, Color other) {
    return pixel == other || (pixel.a == 0 && other.a == 0);
}

Color doubled_pixel(const Tile& picture, int x, int y, int level) {
    if (level == 0) {
        return picture.get_pixel_clamped(x, y);
    }
    const int column = x >> 1;
    const int row = y >> 1;
    const auto near = [&](int dx, int dy) {
        return doubled_pixel(picture, column + dx, row + dy, level - 1);
    };
    const Color side = near(x % 2 == 0 ? -1 : 1, 0);
    const Color other = near(0, y % 2 == 0 ? -1 : 1);
    const bool is_corner = looks_same(side, other) && !looks_same(side, near(x % 2 == 0 ? 1 : -1, 0)) &&
                           !looks_same(other, near(0, y % 2 == 0 ? 1 : -1));
    return is_corner ? side : near(0, 0);
}

struct Direction {
    double cosine = 1;
    double sine = 0;
};

// Without the last digits that would keep quarter turns from being exact.
Direction direction_of(int degrees) {
    switch (degrees) {
    case 0: return {1, 0};
    case 90: return {0, 1};
    case 180: return {-1, 0};
    case 270: return {0, -1};
    default: break;
    }
    const double angle = degrees * std::numbers::pi / 180;
    return {std::cos(angle), std::sin(angle)};
}

int normalized(int degrees) {
    return ((degrees % 360) + 360) % 360;
}

// Both in pixels from the top left corner.
Color sampled(const Tile& picture, double x, double y, bool is_exact) {
    const int column = static_cast<int>(std::floor(x));
    const int row = static_cast<int>(std::floor(y));
    if (picture.is_outside(column, row)) {
        return transparent;
    }
    constexpr int scale = 1 << doublings;
    return is_exact
               ? picture.get_pixel(column, row)
               : doubled_pixel(picture, static_cast<int>(x * scale), static_cast<int>(y * scale), doublings);
}

} // namespace

Tile turned(const Tile& picture, int degrees, Size size) {
    const int angle = normalized(degrees);
    const Direction direction = direction_of(angle);
    Tile result(size.width, size.height);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const double right = x + 0.5 - size.width / 2.0;
            const double down = y + 0.5 - size.height / 2.0;
            const double from_x = direction.cosine * right + direction.sine * down + picture.width() / 2.0;
            const double from_y = direction.cosine * down - direction.sine * right + picture.height() / 2.0;
            result.set_pixel(x, y, sampled(picture, from_x, from_y, angle % 90 == 0));
        }
    }
    return result;
}

namespace {

// Rounded up, and as even or odd as before, so that the middle does not move.
int grown(double extent, int before) {
    const int whole = static_cast<int>(std::ceil(extent - 1e-9));
    return whole + std::abs(whole - before) % 2;
}

} // namespace

Floating_Paste turned(const Floating_Paste& paste, int degrees) {
    const Direction direction = direction_of(normalized(degrees));
    const int width = paste.picture.width();
    const int height = paste.picture.height();
    const double cosine = std::abs(direction.cosine);
    const double sine = std::abs(direction.sine);
    const Size size{grown(width * cosine + height * sine, width),
                    grown(width * sine + height * cosine, height)};
    return {turned(paste.picture, degrees, size),
            {paste.position.x + (width - size.width) / 2, paste.position.y + (height - size.height) / 2}};
}

int turn_between(Tile_Point from, Tile_Point to, Tile_Point middle_in_halves) {
    const auto direction = [&](Tile_Point point) {
        return std::atan2(2 * point.y + 1 - middle_in_halves.y, 2 * point.x + 1 - middle_in_halves.x);
    };
    const double turn = (direction(to) - direction(from)) * 180 / std::numbers::pi;
    return normalized(static_cast<int>(std::lround(turn)));
}

} // namespace quadrelle
