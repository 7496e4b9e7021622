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

// In the pixels of a sprite, each of which holds three dashes along its edge.
constexpr int dash = 11;

enum class Variant { plain, moved_on };

// Moved on by a dash, a sprite goes on where the plain one of the cell before it stopped, so that the line
// reads as dashed.
int source_place(int place, int length, int sprite_length, Variant variant) {
    const int source = (2 * place + 1) * sprite_length / (2 * length);
    return variant == Variant::plain ? source : (source + dash) % (2 * dash);
}

// As thick as the sprite, which lies or stands.
Cell_Marker stretched(Sprite sprite, int length, Variant variant) {
    const Rectangle area = sprite_rect(sprite);
    const bool lies = area.width > area.height;
    const Size size = lies ? Size{length, area.height} : Size{area.width, length};
    Cell_Marker marker{size, {}};
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const Point place = lies ? Point{source_place(x, length, area.width, variant), y}
                                     : Point{x, source_place(y, length, area.height, variant)};
            const Rgba_Quad pixel = screen->sprites().surface().get_pixel(area.x + place.x, area.y + place.y);
            marker.pixels.emplace_back(pixel.r, pixel.g, pixel.b, pixel.a);
        }
    }
    return marker;
}

Cell_Edges edges_of(Sprite horizontal, Sprite vertical, int length) {
    return {{stretched(horizontal, length, Variant::plain), stretched(horizontal, length, Variant::moved_on)},
            {stretched(vertical, length, Variant::plain), stretched(vertical, length, Variant::moved_on)}};
}

} // namespace

const Cell_Edges* Edge_Pictures::of(Edge_Family family, int pixel_size) {
    if (screen == nullptr) {
        return nullptr;
    }
    const auto index = static_cast<std::size_t>(family);
    Stretched& kept = families_.at(index);
    if (kept.pixel_size != pixel_size) {
        const Family_Row& row = family_table.at(index);
        const bool is_broad = pixel_size >= smallest_cell_with_broad_lines;
        kept = {pixel_size, edges_of(is_broad ? row.broad_horizontal : row.narrow_horizontal,
                                     is_broad ? row.broad_vertical : row.narrow_vertical, pixel_size)};
    }
    return &kept.edges;
}

} // namespace quadrelle
