#include "ui/checkerboard.h"

#include "app/screen.h"
#include "color/standard_colors.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int square = 6;

} // namespace

void draw_checkerboard(const Rectangle& area) {
    screen->fill_rect(area, standard_color(Standard_Color::checker_light));
    for (int row = 0; row * square < area.height; ++row) {
        for (int column = row % 2; column * square < area.width; column += 2) {
            const Point corner{area.x + column * square, area.y + row * square};
            screen->fill_rect({corner.x, corner.y, std::min(square, area.right() - corner.x),
                               std::min(square, area.bottom() - corner.y)},
                              standard_color(Standard_Color::checker_dark));
        }
    }
}

void draw_swatch(const Rectangle& area, Color color) {
    if (color.a < 255) {
        draw_checkerboard(area);
    }
    screen->fill_rect(area, color);
}

} // namespace quadrelle
