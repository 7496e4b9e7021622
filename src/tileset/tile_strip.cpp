#include "tileset/tile_strip.h"

#include "tileset/tileset.h"

#include <algorithm>

namespace quadrelle {

namespace {

// Deliberately a number: of a file with even more tiles the last ones are reached by pages only.
constexpr int forward_target = 1000;

} // namespace

int Tile_Strip::count() const {
    return tileset_->count();
}

void Tile_Strip::clamp_first() {
    first_ = std::max(std::min(first_, count() - visible_cells), 0);
}

void Tile_Strip::scroll(int cells) {
    first_ += cells;
    clamp_first();
}

void Tile_Strip::forward() {
    first_ = forward_target;
    clamp_first();
}

void Tile_Strip::show_current() {
    const int current = tileset_->current_index();
    first_ = std::clamp(first_, current - visible_cells + 1, current);
    clamp_first();
}

int Tile_Strip::cell_of_current() const {
    const int cell = tileset_->current_index() - first_;
    return tileset_->has_tiles() && cell >= 0 && cell < visible_cells ? cell : -1;
}

int Tile_Strip::tile_in(int cell) const {
    const int index = first_ + cell;
    return index < count() ? index : -1;
}

} // namespace quadrelle
