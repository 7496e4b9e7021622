#pragma once

// The pane of the palettes: one of them at a time as a grid of colours, and which entry is selected.

#include "color/color.h"
#include "color/palette_store.h"
#include "ui/pane.h"

#include <optional>

namespace quadrelle {

class Palette_Area : public Pane {
public:
    // Borrows the store. `position` is the top-left corner of the pane, 202 pixels wide.
    Palette_Area(Point position, const Palette_Store& store);

    void draw() const override;
    // Chooses a palette, or selects an entry: then its colour is the answer.
    std::optional<Color> click(Point point);
    // By one entry along either axis; at an edge the selection stays. The entry's colour.
    Color move_selection(int dx, int dy);
    [[nodiscard]] Color selected_color() const { return store_.color(palette_, entry_); }

private:
    // Eight by four cells, or the same room divided more finely for a palette with more entries.
    [[nodiscard]] int columns() const;
    [[nodiscard]] int cell_edge() const;
    [[nodiscard]] Rectangle cell(int entry) const;
    [[nodiscard]] Rectangle less_button() const;
    [[nodiscard]] Rectangle more_button() const;
    void step_palette(int step);

    const Palette_Store& store_;
    int palette_ = 0;
    int entry_ = 0;
};

// Shows the entry selected in the palette: a swatch and its numbers.
class Selected_Color_Area : public Pane {
public:
    Selected_Color_Area(Point position, const Palette_Area& palette);

    void draw() const override;

private:
    const Palette_Area& palette_;
};

} // namespace quadrelle
