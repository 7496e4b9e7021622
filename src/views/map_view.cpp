#include "views/map_view.h"

#include "tileset/tileset.h"
#include "views/map_layout.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quadrelle {

namespace {

constexpr Rectangle area = map_layout::view;

} // namespace

Map_View::Map_View(const Edited_Map& map, const Tileset& tileset)
    : map_(map), tiles_(tileset.tiles()), texture_({area.width, area.height}) {}

void Map_View::take_tiles(const Tileset& tileset) {
    tiles_ = tileset.tiles();
    forget();
}

// The cells go into memory that is there already: for a million of them anew it would take a while to come.
Map_Picture Map_View::picture_of(const Map_Camera& camera, Map_Grid grid, const Map_Overlay& overlay) {
    const Tile_Map& map = map_.map();
    Map_Picture picture{camera, tiles_, grid, camera.seen_cells(map.size()), std::move(spare_cells_)};
    const Rectangle& seen = picture.area;
    picture.cells.clear();
    for (int y = seen.y; y < seen.bottom(); ++y) {
        const auto row =
            map.row(y).subspan(static_cast<std::size_t>(seen.x), static_cast<std::size_t>(seen.width));
        picture.cells.insert(picture.cells.end(), row.begin(), row.end());
    }
    for (const Map_Run& run : overlay.runs) {
        const Rectangle part = intersection(seen, {run.first.x, run.first.y, run.length, 1});
        if (!part.is_empty()) {
            overlay.pattern->place({part.x, part.y}, picture.cells_from({part.x, part.y}, part.width));
        }
    }
    map_.give_indices(picture.cells);
    return picture;
}

Rectangle Map_View::changed_part(const Map_Picture& picture) const {
    const Rectangle whole{0, 0, area.width, area.height};
    if (!shown_ || shown_->camera != picture.camera || shown_->grid != picture.grid ||
        shown_->area != picture.area) {
        return whole;
    }
    Rectangle cells;
    for (int y = 0; y < picture.area.height; ++y) {
        const Map_Cell* const row = picture.row(picture.area.y + y);
        const Map_Cell* const before = shown_->row(picture.area.y + y);
        const int first = static_cast<int>(std::mismatch(row, row + picture.area.width, before).first - row);
        int end = picture.area.width;
        while (end > first && row[end - 1] == before[end - 1]) {
            --end;
        }
        cells = bounds_of(cells, {picture.area.x + first, picture.area.y + y, end - first, 1});
    }
    return cells.is_empty() ? Rectangle{} : intersection(picture.camera.area_of(cells), whole);
}

void Map_View::draw(const Map_Camera& camera, Map_Grid grid, const Map_Overlay& overlay) {
    Map_Picture picture = picture_of(camera, grid, overlay);
    const Rectangle part = changed_part(picture);
    if (!part.is_empty()) {
        texture_.update_part(part, [&](const Pixel_Rows& target) { painter_.paint(picture, part, target); });
    }
    spare_cells_ = shown_ ? std::move(shown_->cells) : std::vector<Map_Cell>();
    shown_ = std::move(picture);
    texture_.draw_at(corner_of(area));
}

} // namespace quadrelle
