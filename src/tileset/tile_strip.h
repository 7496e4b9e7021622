#pragma once

// Which tiles of a set the row along the bottom of the window shows. Moves nothing but itself; draws nothing.

namespace quadrelle {

class Tileset;

class Tile_Strip {
public:
    static constexpr int visible_cells = 51;

    // The strip borrows the set.
    explicit Tile_Strip(const Tileset& tileset) : tileset_(&tileset) {}

    [[nodiscard]] const Tileset& tileset() const { return *tileset_; }
    [[nodiscard]] int count() const;
    // Returns the index of the tile in the leftmost cell; 0 without tiles.
    [[nodiscard]] int first() const { return first_; }
    [[nodiscard]] bool is_at_start() const { return first_ == 0; }
    // The answer is deliberately true also when only the very last tile is out of view.
    [[nodiscard]] bool is_at_end() const { return first_ + visible_cells >= count() - 1; }

    void rewind() { first_ = 0; }
    void forward();
    // A page keeps five of the old cells in view.
    void page_back() { scroll(-page); }
    void page_forward() { scroll(page); }
    // Must be called after another tile became the current one, or the number of tiles changed.
    void show_current();

    // Returns a cell, or -1 when the current tile is out of view.
    [[nodiscard]] int cell_of_current() const;
    // Returns the index of the tile in that cell, or -1 where there is none.
    [[nodiscard]] int tile_in(int cell) const;

private:
    static constexpr int page = visible_cells - 5;

    void scroll(int cells);
    void clamp_first();

    const Tileset* tileset_;
    int first_ = 0;
};

} // namespace quadrelle
