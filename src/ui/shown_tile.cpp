#include "ui/shown_tile.h"

#include "pixels/tile.h"

namespace quadrelle {

void Shown_Tile::draw(const Tile& tile, const Rectangle& destination) {
    draw_part(tile, {0, 0, tile.width(), tile.height()}, destination);
}

void Shown_Tile::draw_part(const Tile& tile, const Rectangle& source, const Rectangle& destination) {
    if (tile.version() != version_) {
        update_texture(tile);
        version_ = tile.version();
    }
    texture_->draw_part(source, destination);
}

void Shown_Tile::update_texture(const Tile& tile) {
    if (texture_ && texture_->size() == tile.size()) {
        texture_->upload(tile.pixels());
    } else {
        texture_.emplace(tile.pixels(), tile.size());
    }
}

} // namespace quadrelle
