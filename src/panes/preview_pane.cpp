#include "panes/preview_pane.h"

#include "pixels/tile.h"
#include "screen/screen.h"
#include "ui/checkerboard.h"

#include <algorithm>

namespace quadrelle {

Preview_Pane::Preview_Pane(const Rectangle& below_title)
    : Pane(below_title, "Preview"),
      checkerboard_(make_checkerboard({client_area().width, client_area().height})) {}

Preview_Pane::~Preview_Pane() = default;

void Preview_Pane::set_repeat(int columns, int rows) {
    repeat_ = {std::max(columns, 1), std::max(rows, 1)};
}

// The whole pattern in the middle, or what of it fits.
Rectangle Preview_Pane::pattern_area(Size tile) const {
    const Rectangle client = client_area();
    const Size pattern{std::min(tile.width * repeat_.width, client.width),
                       std::min(tile.height * repeat_.height, client.height)};
    return centred(pattern, client);
}

void Preview_Pane::draw(const Tile* tile) {
    Pane::draw();
    // A pattern that fills the pane deliberately covers its outline: every pixel shows.
    draw_frame();
    if (tile != nullptr && tile->pixel_count() > 0) {
        draw_pattern(*tile);
    }
}

void Preview_Pane::draw_pattern(const Tile& tile) {
    const Rectangle pattern = pattern_area(tile.size());
    checkerboard_->draw_part({0, 0, pattern.width, pattern.height}, pattern);
    for (int y = pattern.y; y < pattern.bottom(); y += tile.height()) {
        for (int x = pattern.x; x < pattern.right(); x += tile.width()) {
            const Size shown{std::min(tile.width(), pattern.right() - x),
                             std::min(tile.height(), pattern.bottom() - y)};
            shown_.draw_part(tile, {0, 0, shown.width, shown.height}, {x, y, shown.width, shown.height});
        }
    }
}

} // namespace quadrelle
