#pragma once

// The pixels of a tile as a cell of a map shows them.

#include "map/map_cell.h"
#include "pixels/tile.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace quadrelle {

// The pixel at (x, y) of the cell is `first[x * step_x + y * step_y]`.
struct Oriented_Pixels {
    const Color* first = nullptr; // none for a cell that shows nothing
    std::ptrdiff_t step_x = 0;
    std::ptrdiff_t step_y = 0;

    [[nodiscard]] Color at(int x, int y) const { return first[x * step_x + y * step_y]; }
};

// A tile that is not square is not turned: its columns and rows stay.
[[nodiscard]] Oriented_Pixels oriented(const Tile& tile, Orientation orientation);

// The cell has an index; of one that no tile has there is nothing to show.
using Tile_Pictures = std::span<const Tile* const>;
[[nodiscard]] Oriented_Pixels pixels_of(Map_Cell cell, Tile_Pictures tiles);

// The same for many cells: what all tiles have in common is found once.
class Cell_Pixels {
public:
    explicit Cell_Pixels(Tile_Pictures tiles);

    // One row of the cells: pixels beside each other, a step apart. A cell that shows nothing is transparent
    // black.
    struct Line {
        const Color* first = nullptr;
        std::ptrdiff_t step = 0;
    };
    class Lines {
    public:
        Lines(const Cell_Pixels& pixels, int y);

        // Without a branch, which would often be guessed wrong.
        [[nodiscard]] Line of(Map_Cell cell) const {
            const auto tile = static_cast<std::size_t>(cell.tile());
            const bool is_shown = tile < tiles_.size() - 1;
            const std::size_t index = is_shown ? tile : tiles_.size() - 1;
            const std::size_t way = is_shown ? cell.orientation_index() : Map_Cell::orientation_count;
            return {tiles_[index] + first_[way], step_[way]};
        }

    private:
        std::span<const Color* const> tiles_;
        // The last ones are those of nothing.
        std::array<std::ptrdiff_t, Map_Cell::orientation_count + 1> first_{};
        std::array<std::ptrdiff_t, Map_Cell::orientation_count + 1> step_{};
    };

private:
    struct Orientation_Steps {
        std::ptrdiff_t first = 0;
        std::ptrdiff_t step_x = 0;
        std::ptrdiff_t step_y = 0;
    };

    std::vector<const Color*> first_pixels_; // behind those of all tiles a transparent one
    std::array<Orientation_Steps, Map_Cell::orientation_count> steps_;
};

} // namespace quadrelle
