#pragma once

// The current tile in real size, repeated, as a pattern that it may be used for.

#include "ui/pane.h"

namespace quadrelle {

class Tile;

class Preview_Pane : public Pane {
public:
    explicit Preview_Pane(const Rectangle& below_title);
    ~Preview_Pane() override;

    void draw() const override;
    // What has no room is not shown.
    void set_repeat(int columns, int rows);
    // Borrowed: must stay until another one or null is set.
    void set_tile(const Tile* tile) { tile_ = tile; }

private:
    [[nodiscard]] Rectangle pattern_area() const;
    void draw_tiles(const Rectangle& pattern) const;

    const Tile* tile_ = nullptr;
    Size repeat_{1, 1};
    std::unique_ptr<Texture> checkerboard_;
};

} // namespace quadrelle
