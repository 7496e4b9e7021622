#include "panes/tile_strip_picture.h"

#include "color/standard_colors.h"
#include "pixels/thumbnail.h"
#include "screen/screen.h"
#include "tileset/tile_strip.h"
#include "tileset/tileset.h"
#include "ui/window_layout.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr Rectangle area = window_layout::tile_strip;
constexpr int cell_size = area.height;
static_assert(cell_size == thumbnail_edge && area.width == Tile_Strip::visible_cells * cell_size);

// A shallow hollow.
void paint_free_place(int x, const Pixel_Rows& target) {
    constexpr Color ground = standard_color(Standard_Color::frame);
    constexpr int last = thumbnail_edge - 1;
    Color shade = ground;
    shade.darken(14);
    Color light = ground;
    light.brighten(10);
    for (int y = 0; y <= last; ++y) {
        Color* const row = target.row(y) + x;
        std::fill_n(row, thumbnail_edge, y == 0 ? shade : y == last ? light : ground);
        row[0] = y == last ? ground : shade;
        row[last] = y == 0 ? ground : light;
    }
}

void paint(const Tile_Strip& strip, const Pixel_Rows& target) {
    for (int cell = 0; cell < Tile_Strip::visible_cells; ++cell) {
        const int x = cell * cell_size;
        const int index = strip.tile_in(cell);
        if (index >= 0) {
            paint_thumbnail(strip.tileset().tile_at(index), {x, 0}, target);
        } else {
            paint_free_place(x, target);
        }
    }
}

} // namespace

Tile_Strip_Picture::Tile_Strip_Picture() : texture_({area.width, area.height}, screen->renderer()) {}

// Composed in memory: as single textures, scaled and blended, the tiles would cost much more.
void Tile_Strip_Picture::draw(const Tile_Strip& strip) {
    constexpr Point place = corner_of(area);
    texture_.update([&strip](const Pixel_Rows& target) { paint(strip, target); });
    texture_.draw_at(place);
    const int current = strip.cell_of_current();
    if (current >= 0) {
        screen->draw_sprite(Sprite::first_marker, {place.x + current * cell_size, place.y});
    }
}

int tile_at(const Tile_Strip& strip, Point point) {
    return area.contains(point) ? strip.tile_in((point.x - area.x) / cell_size) : -1;
}

} // namespace quadrelle
