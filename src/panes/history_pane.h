#pragma once

// Shows the newest states of the current tileset as a strip of thumbnails. Changes nothing.

#include "tileset/undo_history.h"
#include "ui/pane.h"
#include "ui/shown_tile.h"

#include <array>

namespace quadrelle {

class History_Pane : public Pane {
public:
    explicit History_Pane(Point position);

    using Pane::draw;
    // Draws the newest seven entries, the newest one on the right.
    void draw(const Undo_History& history);

private:
    static constexpr int shown_entries = 7;

    void draw_entries(const Undo_History& history);

    std::array<Shown_Tile, shown_entries> thumbnails_;
};

} // namespace quadrelle
