#pragma once

// The pane of the palettes: one of them at a time as a grid of colours, and which entry is selected. Beside
// their name stands a swatch that belongs to none of them: transparent.

#include "color/color.h"
#include "color/palette_store.h"
#include "ui/pane.h"

#include <optional>
#include <string>

namespace quadrelle {

class Palette_Area : public Pane {
public:
    // Borrows the store. `position` is the top-left corner of the pane.
    Palette_Area(Point position, Palette_Store& store);

    void draw() const override;
    // Chooses a palette, or selects an entry: then its colour is the answer.
    std::optional<Color> click(Point point);
    [[nodiscard]] std::optional<int> entry_at(Point point) const;
    [[nodiscard]] bool has_transparent_at(Point point) const { return transparent_swatch().contains(point); }
    [[nodiscard]] bool has_entries() const { return store_.count(palette_) > 0; }
    // Goes by one entry along either axis and returns its colour; at an edge the selection stays.
    Color move_selection(int dx, int dy);
    [[nodiscard]] Color selected_color() const { return store_.color(palette_, entry_); }
    // Makes the colour the selected entry's.
    void store(Color color) { store_.set_color(palette_, entry_, color); }

private:
    // A palette has eight by four cells, or the same room divided more finely for more entries.
    [[nodiscard]] int divisions() const;
    [[nodiscard]] int columns() const;
    [[nodiscard]] Size cell_size() const;
    [[nodiscard]] Rectangle cell(int entry) const;
    [[nodiscard]] Rectangle transparent_swatch() const;
    [[nodiscard]] Rectangle less_button() const;
    [[nodiscard]] Rectangle more_button() const;
    [[nodiscard]] std::string shown_name() const;
    void step_palette(int step);

    Palette_Store& store_;
    int palette_ = 0;
    int entry_ = 0;
};

} // namespace quadrelle
