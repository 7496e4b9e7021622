#include "ui/checkerboard.h"

#include "color/translucency.h"
#include "screen/screen.h"
#include "screen/surface.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int square = 6;

} // namespace

void draw_checkerboard(const Rectangle& area) {
    for (int y = 0; y < area.height; y += square) {
        for (int x = 0; x < area.width; x += square) {
            screen->fill_rect(
                {area.x + x, area.y + y, std::min(square, area.width - x), std::min(square, area.height - y)},
                checkerboard_color(x, y, {square, square}));
        }
    }
}

std::unique_ptr<Texture> make_checkerboard(Size size) {
    Surface surface(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            surface.set_pixel(x, y, to_rgba(checkerboard_color(x, y, {square, square})));
        }
    }
    return std::make_unique<Texture>(surface);
}

} // namespace quadrelle
