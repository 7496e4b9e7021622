#pragma once

// Which pixels of a tile are selected. Knows no view and no tool.

#include "base/geometry.h"
#include "pixels/tile.h"
#include "tools/drawing_target.h"

#include <functional>

namespace quadrelle {

enum class Selection_Change { add, remove };

class Selection {
public:
    // Nothing is selected at first.
    explicit Selection(Size size);

    [[nodiscard]] Size size() const { return mask_.size(); }
    [[nodiscard]] bool is_empty() const { return count_ == 0; }
    [[nodiscard]] int count() const { return count_; }
    // Nothing outside the tile is selected.
    [[nodiscard]] bool contains(Tile_Point pixel) const { return mask_.is_white_at(pixel.x, pixel.y); }
    // The mask is white where selected, else transparent black.
    [[nodiscard]] const Tile& mask() const { return mask_; }
    // Returns the smallest rectangle around what is selected, in tile pixels; its size is 0 when empty.
    [[nodiscard]] Rectangle bounds() const;

    void clear();
    void invert();
    // The other one has the same size.
    void combine(const Selection& other, Selection_Change change);
    // What `paint` draws in white is selected too.
    void draw(const std::function<void(Drawing_Target&)>& paint);
    // `change` may make pixels of the mask `selected_color` and `unselected_color`, and no other colour.
    void change(const std::function<void(Tile& mask)>& change);

    static constexpr Color selected_color{255, 255, 255};
    static constexpr Color unselected_color{0, 0, 0, 0};

    [[nodiscard]] bool operator==(const Selection& other) const;

private:
    void count_selected();

    Tile mask_;
    int count_ = 0;
};

// Selects what lies between two corners of cells, given in any order.
[[nodiscard]] Selection selected_rectangle(Size size, Tile_Point from, Tile_Point to);

} // namespace quadrelle
