#include "selection/paste_shape.h"

#include "pixels/picture_formats.h"
#include "selection/free_rotation.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quadrelle {

namespace {

Tile enlarged(const Tile& picture, Factors factors) {
    Tile result(picture.width() * factors.x, picture.height() * factors.y);
    result.change_pixels([&](std::span<Color> pixels) {
        auto pixel = pixels.begin();
        for (int y = 0; y < result.height(); ++y) {
            for (int x = 0; x < result.width(); ++x, ++pixel) {
                *pixel = picture.get_pixel(x / factors.x, y / factors.y);
            }
        }
    });
    return result;
}

Shared_Picture picture_of(const Paste_Shape& shape) {
    Shared_Picture picture = shape.taken;
    if (shape.factors != Factors{}) {
        picture = enlarged(picture, shape.factors);
    }
    if (shape.degrees != 0) {
        picture = turned(picture, shape.degrees, size_turned(picture->size(), shape.degrees));
    }
    return picture;
}

bool is_right(Corner corner) {
    return corner == Corner::top_right || corner == Corner::bottom_right;
}

bool is_bottom(Corner corner) {
    return corner == Corner::bottom_left || corner == Corner::bottom_right;
}

// Of a picture that was scaled, in pixels.
constexpr int largest_scaled_area = 1024 * 1024;

int as_factor(double wanted, int extent) {
    const int most = std::max(largest_picture_edge / std::max(extent, 1), 1);
    return static_cast<int>(std::clamp(std::round(wanted), 1.0, static_cast<double>(most)));
}

// What is turned is made anew at each motion of the pointer.
Factors within_area(Factors factors, Size taken) {
    const double most =
        std::max(static_cast<double>(largest_scaled_area) / (taken.width * taken.height), 1.0);
    const double too_many = std::max(factors.x * factors.y / most, 1.0);
    const auto limited = [](double factor, double limit) {
        return static_cast<int>(std::max(std::min(factor, limit), 1.0));
    };
    const int x = limited(factors.x / std::sqrt(too_many), most);
    const int y = limited(factors.y / std::sqrt(too_many), most / x);
    return {x, y};
}

Factors allowed(Factors factors, Size taken) {
    return within_area({as_factor(factors.x, taken.width), as_factor(factors.y, taken.height)}, taken);
}

// Nearer to lying on its side than to standing upright: then its width is what is seen as its height.
bool is_on_its_side(int degrees) {
    const int rest = degrees % 180;
    return rest > 45 && rest < 135;
}

} // namespace

Paste_Shape shape_of(const Floating_Paste& paste) {
    return paste.shape.value_or(Paste_Shape{paste.picture});
}

Floating_Paste turned(const Floating_Paste& paste, int degrees) {
    Paste_Shape shape = shape_of(paste);
    shape.degrees = normalized_degrees(degrees);
    const Shared_Picture picture = picture_of(shape);
    const Size before = paste.picture->size();
    return {picture,
            {paste.position.x + (before.width - picture->width()) / 2,
             paste.position.y + (before.height - picture->height()) / 2},
            std::move(shape)};
}

Floating_Paste scaled(const Floating_Paste& paste, Factors factors, Corner fixed) {
    Paste_Shape shape = shape_of(paste);
    const Factors before_scaling = std::exchange(shape.factors, allowed(factors, shape.taken->size()));
    if (shape.factors == before_scaling) {
        return paste;
    }
    const Shared_Picture picture = picture_of(shape);
    const Size before = paste.picture->size();
    return {picture,
            {paste.position.x + (is_right(fixed) ? before.width - picture->width() : 0),
             paste.position.y + (is_bottom(fixed) ? before.height - picture->height() : 0)},
            std::move(shape)};
}

Floating_Paste placed(const Floating_Paste& paste, const Placement& placement) {
    const Size before = paste.picture->size();
    const Size size = placement.size_after(before);
    Floating_Paste result{placed(paste.picture, placement),
                          {paste.position.x + (before.width - size.width) / 2,
                           paste.position.y + (before.height - size.height) / 2}};
    if (paste.shape) {
        // What is mirrored after it was turned is as if it had been turned the other way after that.
        const auto& [taken, factors, degrees] = *paste.shape;
        result.shape = {placed(taken, placement),
                        placement.swaps_sides ? Factors{factors.y, factors.x} : factors,
                        placement.swaps_sides ? degrees : normalized_degrees(-degrees)};
    }
    return result;
}

Factors factors_for(const Floating_Paste& paste, Corner fixed, Tile_Position pulled) {
    const Paste_Shape shape = shape_of(paste);
    const double width = paste.picture->width();
    const double height = paste.picture->height();
    const double wider = std::max(width + (is_right(fixed) ? -pulled.x : pulled.x), 0.0) / width;
    const double higher = std::max(height + (is_bottom(fixed) ? -pulled.y : pulled.y), 0.0) / height;
    const bool is_swapped = is_on_its_side(shape.degrees);
    return {as_factor(shape.factors.x * (is_swapped ? higher : wider), shape.taken->width()),
            as_factor(shape.factors.y * (is_swapped ? wider : higher), shape.taken->height())};
}

} // namespace quadrelle
