#include "panes/tile_strip_picture.h"

#include "color/standard_colors.h"
#include "pixels/thumbnail.h"
#include "screen/screen.h"
#include "tileset/tileset.h"
#include "ui/control.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

constexpr Rectangle area = window_layout::tile_strip;
constexpr int cell_size = area.height;
static_assert(cell_size == thumbnail_edge && area.width == Tile_Strip::visible_cells * cell_size);

// A shallow hollow.
void paint_free_place(const Pixel_Rows& target) {
    constexpr Color ground = standard_color(Standard_Color::frame);
    constexpr int last = thumbnail_edge - 1;
    Color shade = ground;
    shade.darken(14);
    Color light = ground;
    light.brighten(10);
    for (int y = 0; y <= last; ++y) {
        Color* const row = target.row(y);
        std::fill_n(row, thumbnail_edge, y == 0 ? shade : y == last ? light : ground);
        row[0] = y == last ? ground : shade;
        row[last] = y == 0 ? ground : light;
    }
}

// Of a free place 0, which no tile has.
std::uint64_t version_in(const Tile_Strip& strip, int cell) {
    const int index = strip.tile_in(cell);
    return index < 0 ? 0 : strip.tileset().tile_at(index).version();
}

} // namespace

Tile_Strip_Picture::Tile_Strip_Picture() : texture_({area.width, area.height}) {}

// Composed in memory: as single textures, scaled and blended, the tiles would cost much more.
void Tile_Strip_Picture::draw(const Tile_Strip& strip) {
    constexpr Point place = corner_of(area);
    for (int cell = 0; cell < Tile_Strip::visible_cells; ++cell) {
        update_cell(strip, cell);
    }
    texture_.draw_at(place);
    const int current = strip.cell_of_current();
    if (current >= 0) {
        screen->draw_sprite(Sprite::first_marker, {place.x + current * cell_size, place.y});
    }
    for (int cell = 0; is_pointed_at(area) && cell < Tile_Strip::visible_cells && strip.tile_in(cell) >= 0;
         ++cell) {
        draw_outlined_answer({place.x + cell * cell_size, place.y, cell_size, cell_size});
    }
}

void Tile_Strip_Picture::update_cell(const Tile_Strip& strip, int cell) {
    const std::optional<std::uint64_t> version = version_in(strip, cell);
    if (std::exchange(shown_versions_.at(static_cast<std::size_t>(cell)), version) == version) {
        return;
    }
    const int index = strip.tile_in(cell);
    texture_.update_part({cell * cell_size, 0, cell_size, cell_size}, [&](const Pixel_Rows& target) {
        if (index >= 0) {
            paint_thumbnail(strip.tileset().tile_at(index), {0, 0}, target);
            paint_edge({thumbnail_edge - 1, 0, 1, thumbnail_edge}, target);
        } else {
            paint_free_place(target);
        }
    });
}

int tile_at(const Tile_Strip& strip, Point point) {
    return area.contains(point) ? strip.tile_in((point.x - area.x) / cell_size) : -1;
}

} // namespace quadrelle
