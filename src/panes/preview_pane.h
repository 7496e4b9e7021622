#pragma once

// A tile in real size, repeated, as a pattern that it may be used for.

#include "ui/pane.h"
#include "ui/shown_tile.h"

namespace quadrelle {

class Tile;

class Preview_Pane : public Pane {
public:
    explicit Preview_Pane(const Rectangle& below_title);
    ~Preview_Pane() override;

    using Pane::draw;
    // Draws the empty pane where the tile is null.
    void draw(const Tile* tile);
    // Repeats the tile that often; what has no room is not shown.
    void set_repeat(int columns, int rows);

private:
    [[nodiscard]] Rectangle pattern_area(Size tile) const;
    void draw_pattern(const Tile& tile);

    Shown_Tile shown_;
    Size repeat_{1, 1};
    std::unique_ptr<Texture> checkerboard_;
};

} // namespace quadrelle
