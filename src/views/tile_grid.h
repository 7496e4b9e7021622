#pragma once

// The tiles of a set in cells, row by row, in a panel with a title and lines of text below them. Shows one
// page of the set; knows nothing of what its users select.

#include "base/geometry.h"
#include "screen/sprite_table.h"
#include "ui/text_pane.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quadrelle {

class Opaque_Texture;
class Tile;
class Tileset;
struct Pixel_Rows;

class Tile_Grid {
public:
    // The grid as most views show it: 16 x 16 cells near the window's corner.
    Tile_Grid(std::string_view title, const Tileset& tileset);
    // `cells` counts columns and rows, `cell` is in window pixels. The tileset is borrowed.
    Tile_Grid(std::string_view title, const Tileset& tileset, Size cells, Size cell);
    ~Tile_Grid();

    // Returns the tile at `position`, or -1.
    [[nodiscard]] int tile_at(Point position) const;
    [[nodiscard]] bool is_on_title(Point position) const;
    [[nodiscard]] int columns() const { return cells_.width; }
    [[nodiscard]] int rows() const { return cells_.height; }

    [[nodiscard]] int page() const { return page_; }
    // Returns at least one.
    [[nodiscard]] int page_count() const;
    // Stops at the first and the last page.
    void set_page(int page);
    void show_page_of(int tile);

    // The text may have up to three lines.
    void draw(std::string_view text);
    // Draws the marker with its corner on that of a cell; nothing for a cell that is not there.
    void draw_marker(Sprite marker, int column, int row) const;

private:
    [[nodiscard]] int page_size() const { return cells_.width * cells_.height; }
    // Composes the picture anew if the page's tiles are no longer those that it shows.
    void update_picture();
    [[nodiscard]] std::vector<std::uint64_t> versions_on_page() const;
    void draw_answers() const;
    void paint_cells(const Pixel_Rows& target) const;

    const Tileset& tileset_;
    Size cells_;
    Size cell_;
    Rectangle area_;
    int page_ = 0;
    Text_Pane text_;
    std::unique_ptr<Opaque_Texture> picture_;
    std::optional<std::vector<std::uint64_t>> shown_versions_; // none before the first picture
};

} // namespace quadrelle
