#pragma once

// What every tool draws on: a tile, and the selection that limits where. Knows no tool and no view.

#include "pixels/tile.h"

namespace quadrelle {

// Borrows both tiles.
class Drawing_Target {
public:
    explicit Drawing_Target(Tile& tile) : tile_(&tile) {}
    // White pixels of the mask are selected. The selection is active.
    Drawing_Target(Tile& tile, const Tile& mask) : tile_(&tile), mask_(&mask), selection_active_(true) {}

    [[nodiscard]] Size size() const { return tile_->size(); }
    [[nodiscard]] const Tile& tile() const { return *tile_; }
    [[nodiscard]] Tile& tile() { return *tile_; }
    [[nodiscard]] bool contains(Tile_Point position) const {
        return !tile_->is_outside(position.x, position.y);
    }
    // Needs a mask to take effect.
    void set_selection_active(bool active) { selection_active_ = active && mask_ != nullptr; }
    [[nodiscard]] bool is_selected(Tile_Point position) const {
        return !selection_active_ || mask_->is_white_at(position.x, position.y);
    }

    // Nothing happens outside the tile or an active selection.
    void plot(Tile_Point position, Color color) {
        if (is_selected(position)) {
            tile_->set_pixel(position.x, position.y, color);
        }
    }
    // Outside, what the tile answers there.
    [[nodiscard]] Color get(Tile_Point position) const { return tile_->get_pixel(position.x, position.y); }

private:
    Tile* tile_;
    const Tile* mask_ = nullptr;
    bool selection_active_ = false;
};

} // namespace quadrelle
