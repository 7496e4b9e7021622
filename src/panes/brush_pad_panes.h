#pragma once

// The panes "Selected" and "Brush pad", which show the brush pad. Know no tool.

#include "tools/brush_pad.h"
#include "ui/pane.h"
#include "ui/shown_tile.h"

#include <memory>
#include <optional>

namespace quadrelle {

class Brush_Pad_Panes {
public:
    Brush_Pad_Panes();

    // Puts the pane "Selected" there and returns the y for what comes below.
    int move_selected(Point position);
    // Draws both; the frame of the brush under the pointer is red.
    void draw(const Brush_Pad& pad, Point pointer);
    // Returns the board's cell at `point`, or none beside the board.
    [[nodiscard]] std::optional<Tile_Point> cell_at(Point point) const;
    // Returns whether the pane of the board, with its title and border, is at `point`.
    [[nodiscard]] bool has_board_at(Point point) const { return board_pane_.area.contains(point); }

private:
    void update_pictures(const Brush_Pad& pad, std::uint8_t hovered);
    void draw_selected();

    Pane selected_pane_;
    Pane board_pane_;
    // One pixel for each cell of the board, and of the current brush, which may be none.
    Tile board_picture_;
    std::unique_ptr<Tile> selected_picture_;
    Shown_Tile shown_board_;
    Shown_Tile shown_selected_;
    std::optional<int> shown_revision_;
    std::uint8_t shown_hovered_ = 0;
};

} // namespace quadrelle
