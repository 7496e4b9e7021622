#pragma once

// An ordered sequence of tiles of one size with a current tile. Knows nothing of files and views.

#include "pixels/tile.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace quadrelle {

// The most tiles that can be added to a document; a file may bring more.
constexpr int default_tile_limit = 256;

// Without tiles, as when just made or loaded from a file that holds none, there is no current tile, its index
// is 0, and all but adding and inserting is refused.
class Tileset {
public:
    explicit Tileset(Size tile_size, int tile_limit = default_tile_limit);

    [[nodiscard]] int tile_width() const { return tile_size_.width; }
    [[nodiscard]] int tile_height() const { return tile_size_.height; }
    [[nodiscard]] Size tile_size() const { return tile_size_; }
    [[nodiscard]] int count() const { return static_cast<int>(tiles_.size()); }
    [[nodiscard]] bool has_tiles() const { return !tiles_.empty(); }
    [[nodiscard]] bool is_full() const { return count() >= tile_limit_; }
    [[nodiscard]] bool is_last() const { return current_index_ == count() - 1; }
    [[nodiscard]] int current_index() const { return current_index_; }
    // The index must be one of a tile.
    [[nodiscard]] Tile& tile_at(int i) { return *tiles_[static_cast<std::size_t>(i)]; }
    [[nodiscard]] const Tile& tile_at(int i) const { return *tiles_[static_cast<std::size_t>(i)]; }
    // It is null without tiles.
    [[nodiscard]] Tile* current_tile() { return has_tiles() ? &tile_at(current_index_) : nullptr; }
    [[nodiscard]] const Tile* current_tile() const {
        return has_tiles() ? &tile_at(current_index_) : nullptr;
    }
    [[nodiscard]] std::vector<const Tile*> tiles() const;
    // Counts the bytes of a tile in a file.
    [[nodiscard]] std::int64_t tile_bytes() const;
    [[nodiscard]] std::int64_t total_bytes() const { return count() * tile_bytes(); }

    // A new tile, opaque black, becomes the current one. Answers false, with nothing changed, when full.
    bool add_tile();
    // Inserts it before the current tile.
    bool insert_tile();
    // Adds the tile at the end, whatever the limit; the current one stays. It must have the tile size.
    void append_loaded(std::unique_ptr<Tile> tile);

    // Both answer false at the end.
    bool next();
    bool previous();
    // An index that no tile has selects the last one.
    void select(int i);

    // The two exchange their pixels. Answers false for one and the same, or where there is no tile.
    bool swap_tiles(int i, int j);
    // The last one left is filled with opaque black instead, with the answer false.
    bool delete_current();
    // Resamples every tile and selects the first.
    void resize_all(Size tile_size);

    // What a set offers although no command needs it.

    // Without tiles, what a tile answers outside its edges.
    [[nodiscard]] Color current_pixel(int x, int y) const;
    // After the current tile, with the source resampled to the tile size.
    bool insert_copy_after(const Tile& source);

private:
    [[nodiscard]] bool has_index(int i) const { return i >= 0 && i < count(); }
    void insert_at(int i);

    Size tile_size_;
    int tile_limit_;
    int current_index_ = 0;
    std::vector<std::unique_ptr<Tile>> tiles_;
};

} // namespace quadrelle
