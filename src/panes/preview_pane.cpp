#include "panes/preview_pane.h"

#include "pixels/tile.h"
#include "screen/screen.h"
#include "screen/streaming_texture.h"
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
Rectangle Preview_Pane::pattern_area() const {
    const Rectangle client = client_area();
    const Size pattern{std::min(tile_->width() * repeat_.width, client.width),
                       std::min(tile_->height() * repeat_.height, client.height)};
    return centred(pattern, client);
}

void Preview_Pane::draw() const {
    Pane::draw();
    // A pattern that fills the pane deliberately covers its outline: every pixel shows.
    draw_frame();
    if (tile_ != nullptr) {
        const Rectangle pattern = pattern_area();
        checkerboard_->draw_part({0, 0, pattern.width, pattern.height}, pattern);
        draw_tiles(pattern);
    }
}

void Preview_Pane::draw_tiles(const Rectangle& pattern) const {
    if (tile_->width() == 0 || tile_->height() == 0) {
        return;
    }
    for (int y = pattern.y; y < pattern.bottom(); y += tile_->height()) {
        for (int x = pattern.x; x < pattern.right(); x += tile_->width()) {
            const Size shown{std::min(tile_->width(), pattern.right() - x),
                             std::min(tile_->height(), pattern.bottom() - y)};
            tile_->texture().draw_part({0, 0, shown.width, shown.height}, {x, y, shown.width, shown.height});
        }
    }
}

} // namespace quadrelle
