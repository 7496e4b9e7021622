#pragma once

// What every tool draws on: a tile, and the selection that limits where. Knows no tool and no view.

#include "pixels/tile.h"

namespace quadrelle {

// It borrows both tiles.
class Drawing_Target {
public:
    explicit Drawing_Target(Tile& tile) : tile_(&tile) {}
    // The white pixels of the mask are selected.
    Drawing_Target(Tile& tile, const Tile& mask) : tile_(&tile), mask_(&mask) {}

    [[nodiscard]] Size size() const { return tile_->size(); }
    [[nodiscard]] const Tile& tile() const { return *tile_; }
    [[nodiscard]] Tile& tile() { return *tile_; }
    [[nodiscard]] bool contains(Tile_Point position) const {
        return !tile_->is_outside(position.x, position.y);
    }
    // Without a selection every pixel is selected.
    [[nodiscard]] bool is_selected(Tile_Point position) const {
        return mask_ == nullptr || mask_->is_white_at(position.x, position.y);
    }

    // Nothing happens outside the tile or the selection.
    void plot(Tile_Point position, Color color) {
        if (is_selected(position)) {
            tile_->set_pixel(position.x, position.y, color);
        }
    }
    // Outside the tile this is what the tile answers there.
    [[nodiscard]] Color get(Tile_Point position) const { return tile_->get_pixel(position.x, position.y); }

private:
    Tile* tile_;
    const Tile* mask_ = nullptr;
};

} // namespace quadrelle
