#pragma once

// Composes the picture of a map in memory. Knows neither window nor events.

#include "color/pixel_rows.h"
#include "map/map_camera.h"
#include "map/oriented_tile.h"
#include "map/tile_map.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace quadrelle {

enum class Map_Grid { hidden, shown };

// What is seen of a map.
struct Map_Picture {
    Map_Camera camera;
    Tile_Pictures tiles;
    Map_Grid grid = Map_Grid::shown;
    Rectangle area = {};              // the cells that are seen
    std::vector<Map_Cell> cells = {}; // row by row, with the indices of tiles

    [[nodiscard]] const Map_Cell* row(int y) const {
        return cells.data() + static_cast<std::ptrdiff_t>(y - area.y) * area.width;
    }
    // Returns cells of a row that are all seen.
    [[nodiscard]] std::span<Map_Cell> cells_from(Map_Point first, int length) {
        const std::ptrdiff_t start =
            static_cast<std::ptrdiff_t>(first.y - area.y) * area.width + (first.x - area.x);
        return std::span(cells).subspan(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    }
};

class Map_Painter {
public:
    // Writes every pixel of that part of the view, all opaque; `target` is as large as the part.
    void paint(const Map_Picture& picture, const Rectangle& part, const Pixel_Rows& target);

private:
    // The pixels in a row of the part that show one column of cells.
    struct Stretch {
        int column = 0;
        int begin = 0;
        int end = 0;
        bool has_edge = false; // the cell begins there too
    };
    // What a row of the view shows: two of which all is the same look the same.
    struct Row_Look {
        int cell_row = 0;
        int tile_y = 0;        // within the cell
        std::size_t board = 0; // which of both kinds
        bool is_edge = false;  // the grid has a line there

        bool operator==(const Row_Look&) const = default;
    };
    [[nodiscard]] static Row_Look look_of(const Map_Picture& picture, int y);
    void find_stretches(const Map_Picture& picture, const Rectangle& part);
    void paint_row(const Map_Cell* cells, const Cell_Pixels::Lines& lines,
                   std::span<const std::uint32_t> board, Color* row);
    void paint_grid(bool is_cell_edge, Color* row) const;

    std::vector<Stretch> stretches_;
    // The greys of the board, in rows of both kinds.
    std::array<std::vector<std::uint32_t>, 2> board_;
    std::vector<std::uint32_t> words_; // of the pixels of a row
    std::vector<int> column_;          // of the cells, for each pixel of a row
    std::vector<int> tile_x_;          // which pixel of its tile each pixel of a row shows
};

// The whole map in its real size, row by row. Borrows map and tiles.
class Map_Rows {
public:
    Map_Rows(const Tile_Map& map, Tile_Pictures tiles, Size tile);

    [[nodiscard]] Size size() const {
        return {map_.size().width * tile_.width, map_.size().height * tile_.height};
    }
    // The row is as wide as that.
    void write(int y, std::span<Color> row) const;

private:
    const Tile_Map& map_;
    Size tile_;
    Cell_Pixels pixels_;
};

// Returns all of that; empty cells are transparent black. The cells have indices.
[[nodiscard]] Tile map_picture(const Tile_Map& map, Tile_Pictures tiles, Size tile);

} // namespace quadrelle
