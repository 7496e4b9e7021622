#include "screen/pixel_image.h"

#include "color/translucency.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"

#include <algorithm>

namespace quadrelle {

Pixel_Image::Pixel_Image(Size size)
    : size_(size), pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)),
      texture_(size) {}

void Pixel_Image::set_pixel(Point position, Color color) {
    Color& pixel = pixels_.at(index_of(position));
    pixel = blended_over(color, pixel);
}

void Pixel_Image::fill_rect(const Rectangle& area, Color color) {
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x) {
            set_pixel({x, y}, color);
        }
    }
}

void Pixel_Image::fill_checkers(const Rectangle& area) {
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            set_pixel({area.x + x, area.y + y}, checkerboard_color(x, y));
        }
    }
}

void Pixel_Image::draw_sprite(Sprite sprite, Point position) {
    const Rectangle part = sprite_rect(sprite);
    for (int y = 0; y < part.height; ++y) {
        for (int x = 0; x < part.width; ++x) {
            const auto [r, g, b, a] = screen->sprites().surface().get_pixel(part.x + x, part.y + y);
            set_pixel({position.x + x, position.y + y}, {r, g, b, a});
        }
    }
}

void Pixel_Image::upload() {
    texture_.update([this](const Pixel_Rows& rows) {
        for (int y = 0; y < size_.height; ++y) {
            std::copy_n(pixels_.begin() + static_cast<std::ptrdiff_t>(index_of({0, y})), size_.width,
                        rows.row(y));
        }
    });
}

} // namespace quadrelle
