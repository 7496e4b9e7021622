#include "app/seam_markers.h"

#include "app/screen.h"
#include "tileset/sprite_sheet.h"

namespace quadrelle {

namespace {

constexpr int smallest_cell_with_broad_markers = 16;

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

void Seam_Markers::load() {
    if (is_loaded_ || screen == nullptr) {
        return;
    }
    narrow_ = {marker_of(Sprite::verti_seam_one), marker_of(Sprite::horiz_seam_one)};
    broad_ = {marker_of(Sprite::verti_seam_two), marker_of(Sprite::horiz_seam_two)};
    is_loaded_ = true;
}

const Cell_Marker* Seam_Markers::along_column(int pixel_size) const {
    return is_loaded_ ? &pair_for(pixel_size).column : nullptr;
}

const Cell_Marker* Seam_Markers::along_row(int pixel_size) const {
    return is_loaded_ ? &pair_for(pixel_size).row : nullptr;
}

const Seam_Markers::Pair& Seam_Markers::pair_for(int pixel_size) const {
    return pixel_size < smallest_cell_with_broad_markers ? narrow_ : broad_;
}

} // namespace quadrelle
