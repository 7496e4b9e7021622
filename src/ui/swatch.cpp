#include "ui/swatch.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "ui/checkerboard.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int least_edge_for_inner_mark = 10;

} // namespace

void draw_swatch(const Rectangle& area, Color color) {
    if (color.a < 255) {
        draw_checkerboard(area);
    }
    screen->fill_rect(area, color);
}

void draw_mark(const Rectangle& area) {
    screen->draw_outline(area, standard_color(Standard_Color::black));
    screen->draw_outline(area.inset(1), standard_color(Standard_Color::white));
}

void draw_cell_mark(const Rectangle& cell) {
    const bool is_small = std::min(cell.width, cell.height) < least_edge_for_inner_mark;
    draw_mark(is_small ? cell.inset(-2) : cell);
}

void draw_mark_around(const Rectangle& picture) {
    const Rectangle outer = picture.inset(-picture_mark_width);
    screen->draw_outline(outer, standard_color(Standard_Color::highlight));
    screen->draw_outline(outer.inset(1), standard_color(Standard_Color::highlight));
    screen->draw_outline(outer.inset(2), standard_color(Standard_Color::black));
}

} // namespace quadrelle
