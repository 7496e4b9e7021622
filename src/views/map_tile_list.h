#pragma once

// The tiles of the set beside the map, row by row, some of them chosen, and the lines below them.

#include "map/tile_map.h"
#include "ui/shown_tile.h"
#include "ui/text_pane.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace quadrelle {

class Tileset;

// What is shown of a tile beside its picture.
struct Listed_Tile {
    int weight = 0;          // 0 where it is not chosen; others than 1 are shown
    std::optional<int> uses; // shown where there is one
};

class Map_Tile_List {
public:
    // The set is borrowed.
    explicit Map_Tile_List(const Tileset& tileset);

    // Returns the tile at that place of the window, or -1.
    [[nodiscard]] int tile_at(Point point) const;
    // Returns the tiles between two, as a rectangle of the list; -1 where there is none.
    [[nodiscard]] Size rectangle_between(int tile, int other, std::vector<int>& chosen) const;
    // Stops at both ends. Returns the first row that is seen.
    int scroll_to(int row);
    void scroll(int rows) { scroll_to(first_row_ + rows); }
    [[nodiscard]] int first_row() const { return first_row_; }
    void bring_into_view(int tile);

    void draw(const std::function<Listed_Tile(int tile)>& look_of, std::string_view text_below);

private:
    [[nodiscard]] Rectangle cell_of(int tile) const;
    static void draw_look(const Listed_Tile& look, const Rectangle& cell);

    const Tileset& tileset_;
    Text_Pane pane_;
    std::vector<Shown_Tile> shown_;
    int first_row_ = 0;
};

} // namespace quadrelle
