#pragma once

// A grid of characters with the colours that they stand for.

#include "palette.h"
#include "source_file.h"

#include <map>
#include <vector>

namespace quadrelle {

struct Cell {
    char character = transparent_character;
    Rgb colour = transparent_colour;

    bool is_transparent() const { return character == transparent_character; }
};

class Cells {
public:
    Cells() = default;
    Cells(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

    // The point lies inside.
    Cell& at(int x, int y) { return cells_[index(x, y)]; }
    const Cell& at(int x, int y) const { return cells_[index(x, y)]; }

    // Transparent cells of `other` leave what is there; what falls outside is dropped.
    void draw(const Cells& other, int x, int y);

    // Each cell with one of the characters becomes the cell given for it.
    void recolour(const std::map<char, Cell>& changes);

private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Cell> cells_;
};

// Rows of unequal length and unknown characters are problems; their cells stay transparent.
Cells read_cells(const Block& block, const Palette& palette, Problems& problems);

// Applies the block's "recolour XY ZW": X becomes Y and Z becomes W.
void apply_recolour(Cells& cells, const Block& block, const Palette& palette, Problems& problems);

} // namespace quadrelle
