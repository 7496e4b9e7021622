#include "tileset/tileset.h"

#include <utility>

namespace quadrelle {

Tileset::Tileset(Size tile_size, int tile_limit) : tile_size_(tile_size), tile_limit_(tile_limit) {}

Color Tileset::current_pixel(int x, int y) const {
    return has_tiles() ? tile_at(current_index_).get_pixel(x, y) : Tile(0, 0).get_pixel(x, y);
}

std::vector<const Tile*> Tileset::tiles() const {
    std::vector<const Tile*> tiles;
    std::ranges::transform(tiles_, std::back_inserter(tiles), &std::unique_ptr<Tile>::get);
    return tiles;
}

std::int64_t Tileset::tile_bytes() const {
    return static_cast<std::int64_t>(tile_size_.width) * tile_size_.height * 4;
}

void Tileset::insert_at(int i) {
    tiles_.insert(tiles_.begin() + i, std::make_unique<Tile>(tile_size_.width, tile_size_.height));
    current_index_ = i;
}

bool Tileset::add_tile() {
    if (is_full()) {
        return false;
    }
    insert_at(count());
    return true;
}

bool Tileset::insert_tile() {
    if (is_full()) {
        return false;
    }
    insert_at(current_index_);
    return true;
}

bool Tileset::insert_copy_after(const Tile& source) {
    if (is_full()) {
        return false;
    }
    insert_at(has_tiles() ? current_index_ + 1 : 0);
    Tile& copy = tile_at(current_index_);
    source.resample_into(copy);
    return true;
}

void Tileset::append_loaded(std::unique_ptr<Tile> tile) {
    tiles_.push_back(std::move(tile));
}

bool Tileset::next() {
    if (current_index_ + 1 >= count()) {
        return false;
    }
    ++current_index_;
    return true;
}

bool Tileset::previous() {
    if (current_index_ == 0) {
        return false;
    }
    --current_index_;
    return true;
}

void Tileset::select(int i) {
    if (has_tiles()) {
        current_index_ = has_index(i) ? i : count() - 1;
    }
}

bool Tileset::swap_tiles(int i, int j) {
    if (i == j || !has_index(i) || !has_index(j)) {
        return false;
    }
    tile_at(i).swap_pixels(tile_at(j));
    return true;
}

bool Tileset::delete_current() {
    if (!has_tiles()) {
        return false;
    }
    if (count() == 1) {
        tile_at(0).fill({});
        return false;
    }
    const bool was_last = is_last();
    tiles_.erase(tiles_.begin() + current_index_);
    current_index_ -= was_last ? 1 : 0;
    return true;
}

void Tileset::resize_all(Size tile_size) {
    for (std::unique_ptr<Tile>& tile : tiles_) {
        auto resized = std::make_unique<Tile>(tile_size.width, tile_size.height);
        tile->resample_into(*resized);
        tile = std::move(resized);
    }
    tile_size_ = tile_size;
    select(0);
}

} // namespace quadrelle
