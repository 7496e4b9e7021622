#pragma once

// "Arrange/Select": two tiles of the set are picked and exchange their images, and one of them can become the
// current tile.

#include "base/geometry.h"
#include "screen/events.h"
#include "views/tile_grid.h"

#include <functional>
#include <string>

namespace quadrelle {

class Tileset;
class Tileset_Document;

class Arrangement {
public:
    // Shows 16 x 16 cells of 32 x 32. Tiles that the grid has no cell for can neither be seen nor picked.
    explicit Arrangement(Tileset_Document& document);
    Arrangement(Tileset_Document& document, Size cells, Size cell);

    // Waits until it is closed. `before_change` is called before a swap, and before another tile becomes the
    // current one, `swapped` after a swap. Returns true when any was made, even one that was taken back.
    bool run(const std::function<void()>& before_change, const std::function<void()>& swapped);

private:
    void draw();
    void draw_marker(Sprite marker, int tile) const;
    [[nodiscard]] std::string text() const;
    Loop_Step handle(const Input_Event& event);
    Loop_Step handle_key(const Input_Event& event);
    Loop_Step press(const Input_Event& event);
    void swap();
    void select_primary();

    Tileset_Document& document_;
    Tileset& tileset_;
    Tile_Grid grid_;
    std::function<void()> before_change_;
    std::function<void()> swapped_;
    int start_ = 0;
    int primary_ = 0;
    int secondary_ = 0;
    int hovered_ = -1;
    bool has_swapped_ = false;
};

} // namespace quadrelle
