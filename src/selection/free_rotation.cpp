#include "selection/free_rotation.h"

#include "pixels/enlarged_picture.h"

#include <cmath>
#include <cstdlib>
#include <numbers>
#include <span>

namespace quadrelle {

namespace {

constexpr Color transparent{0, 0, 0, 0};

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

// `sample(x, y)` gives the colour there, in pixels from the top left corner.
template <typename Sample>
Tile turned_by(const Tile& picture, Direction direction, Size size, Sample sample) {
    const Size from = picture.size();
    Tile result(size.width, size.height);
    result.change_pixels([&](std::span<Color> pixels) {
        auto pixel = pixels.begin();
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x, ++pixel) {
                const double right = x + 0.5 - size.width / 2.0;
                const double down = y + 0.5 - size.height / 2.0;
                const double from_x = direction.cosine * right + direction.sine * down + from.width / 2.0;
                const double from_y = direction.cosine * down - direction.sine * right + from.height / 2.0;
                const bool is_inside =
                    from_x >= 0 && from_y >= 0 && from_x < from.width && from_y < from.height;
                *pixel = is_inside ? sample(from_x, from_y) : transparent;
            }
        }
    });
    return result;
}

} // namespace

Tile turned(const Tile& picture, int degrees, Size size) {
    const int angle = normalized_degrees(degrees);
    const Direction direction = direction_of(angle);
    if (angle % 90 == 0) {
        return turned_by(picture, direction, size, [&picture](double x, double y) {
            return picture.get_pixel(static_cast<int>(x), static_cast<int>(y));
        });
    }
    const Enlarged_Picture enlarged(picture);
    return turned_by(picture, direction, size, [&enlarged](double x, double y) {
        constexpr int scale = Enlarged_Picture::scale;
        return enlarged.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale));
    });
}

namespace {

// Rounded up, and as even or odd as before, so that the middle does not move.
int grown(double extent, int before) {
    const int whole = static_cast<int>(std::ceil(extent - 1e-9));
    return whole + std::abs(whole - before) % 2;
}

} // namespace

Size size_turned(Size size, int degrees) {
    const Direction direction = direction_of(normalized_degrees(degrees));
    const double cosine = std::abs(direction.cosine);
    const double sine = std::abs(direction.sine);
    return {grown(size.width * cosine + size.height * sine, size.width),
            grown(size.width * sine + size.height * cosine, size.height)};
}

int normalized_degrees(int degrees) {
    return ((degrees % 360) + 360) % 360;
}

int turn_between(Tile_Position from, Tile_Position to, Tile_Position middle) {
    const auto direction = [middle](Tile_Position position) {
        return std::atan2(position.y - middle.y, position.x - middle.x);
    };
    const double turn = (direction(to) - direction(from)) * 180 / std::numbers::pi;
    return normalized_degrees(static_cast<int>(std::lround(turn)));
}

} // namespace quadrelle
