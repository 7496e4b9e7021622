#pragma once

// The panes "Selected" and "Brush pad", which show the brush pad. Know no tool.

#include "pixels/shared_picture.h"
#include "tools/brush_pad.h"
#include "tools/chosen_brush.h"
#include "ui/pane.h"
#include "ui/shown_tile.h"

#include <optional>

namespace quadrelle {

class Brush_Pad_Panes {
public:
    Brush_Pad_Panes();

    // Puts the pane "Selected" there and returns the y for what comes below.
    int move_selected(Point position);
    // The frame of the brush under the pointer is red.
    void draw_board(const Brush_Pad& pad, Point pointer);
    // Shows the brush that is in use: the current one of the pad, or else a built-in one in that colour.
    void draw_selected(const Brush_Pad& pad, const Chosen_Brush& chosen, Color color);
    [[nodiscard]] bool has_selected_at(Point point) const { return selected_pane_.area.contains(point); }
    // Returns the board's cell at `point`, or none beside the board.
    [[nodiscard]] std::optional<Tile_Point> cell_at(Point point) const;
    // Returns whether the pane of the board, with its title and border, is at `point`.
    [[nodiscard]] bool has_board_at(Point point) const { return board_pane_.area.contains(point); }

private:
    void update_board(const Brush_Pad& pad, std::uint8_t hovered);

    Pane selected_pane_;
    Pane board_pane_;
    // One pixel for each cell of the board, and of the brush in use.
    Tile board_picture_;
    std::optional<Shared_Picture> selected_picture_;
    Shown_Tile shown_board_;
    Shown_Tile shown_selected_;
    std::optional<int> shown_revision_;
    std::uint8_t shown_hovered_ = 0;
};

} // namespace quadrelle
