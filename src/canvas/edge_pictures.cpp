#include "canvas/edge_pictures.h"

#include "base/table.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"

namespace quadrelle {

namespace {

constexpr int smallest_cell_with_broad_lines = 16;

struct Family_Row {
    Edge_Family id;
    Sprite narrow_horizontal;
    Sprite narrow_vertical;
    Sprite broad_horizontal;
    Sprite broad_vertical;
};

// clang-format off
constexpr std::array<Family_Row, static_cast<std::size_t>(Edge_Family::count)> family_table{{
    {Edge_Family::seam,      Sprite::horiz_seam_one,          Sprite::verti_seam_one,          Sprite::horiz_seam_two,          Sprite::verti_seam_two},
    {Edge_Family::selection, Sprite::horiz_active_select_one, Sprite::verti_active_select_one, Sprite::horiz_active_select_two, Sprite::verti_active_select_two},
    {Edge_Family::candidate, Sprite::horiz_selector_one,      Sprite::verti_selector_one,      Sprite::horiz_selector_two,      Sprite::verti_selector_two},
    {Edge_Family::paste,     Sprite::horiz_paste_one,         Sprite::verti_paste_one,         Sprite::horiz_paste_two,         Sprite::verti_paste_two},
}};
// clang-format on

static_assert(rows_follow_their_ids(family_table));

Cell_Marker marker_of(Sprite sprite) {
    const Rectangle area = sprite_rect(sprite);
    Cell_Marker marker{{area.width, area.height}, {}};
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x) {
            const Rgba_Quad pixel = screen->sprites().surface().get_pixel(x, y);
            marker.pixels.emplace_back(pixel.r, pixel.g, pixel.b, pixel.a);
        }
    }
    return marker;
}

} // namespace

void Edge_Pictures::load() {
    for (const Family_Row& row : family_table) {
        families_.at(static_cast<std::size_t>(row.id)) = {
            {marker_of(row.narrow_horizontal), marker_of(row.narrow_vertical)},
            {marker_of(row.broad_horizontal), marker_of(row.broad_vertical)}};
    }
    is_loaded_ = true;
}

const Cell_Edges* Edge_Pictures::of(Edge_Family family, int pixel_size) {
    if (screen == nullptr) {
        return nullptr;
    }
    if (!is_loaded_) {
        load();
    }
    const Widths& widths = families_.at(static_cast<std::size_t>(family));
    return pixel_size < smallest_cell_with_broad_lines ? &widths.narrow : &widths.broad;
}

} // namespace quadrelle
