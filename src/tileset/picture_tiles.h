#pragma once

// A picture as tiles: where they lie in it, which of them are taken, and a set made of these.

#include "tileset/tileset.h"

#include <cstdint>
#include <vector>

namespace quadrelle {

// The margin lies around the whole picture, though it may lack at the right and below; the spacing between
// tiles.
struct Picture_Grid {
    Size tile{16, 16};
    int margin = 0;
    int spacing = 0;

    bool operator==(const Picture_Grid&) const = default;

    // Returns how many columns and rows of whole tiles the picture has.
    [[nodiscard]] Size cells(Size picture) const;
    // Returns where the tile of that column and row begins.
    [[nodiscard]] Point corner(int column, int row) const {
        return {margin + column * (tile.width + spacing), margin + row * (tile.height + spacing)};
    }
};

enum class Skip { no, yes };

struct Picture_Cut {
    Picture_Grid grid;
    Skip empty = Skip::yes; // tiles with nothing but transparent pixels
    Skip equal = Skip::no;  // tiles of the same pixels as one before them

    bool operator==(const Picture_Cut&) const = default;
};

enum class Cell_Fate : std::uint8_t { taken, empty, equal, beyond };

struct Cut_Plan {
    Size cells;
    std::vector<Cell_Fate> fates; // row by row
    int taken = 0;
    int empty = 0;
    int equal = 0;
    int beyond = 0; // what a set cannot hold
};

// The smallest and largest tiles that are cut out of pictures.
constexpr int smallest_cut_edge = 1;
constexpr int largest_cut_edge = 255;

[[nodiscard]] Cut_Plan plan_cut(const Tile& picture, const Picture_Cut& cut);
// The plan must be the one for this picture and cut.
[[nodiscard]] Tileset cut_tiles(const Tile& picture, const Picture_Grid& grid, const Cut_Plan& plan);

} // namespace quadrelle
