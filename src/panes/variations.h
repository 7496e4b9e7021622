#pragma once

// The pane that offers ramps of colours around the current tool colour.

#include "color/color_ramp.h"
#include "screen/pixel_image.h"
#include "ui/pane.h"

#include <array>
#include <optional>

namespace quadrelle {

class Color_Variations : public Pane {
public:
    explicit Color_Variations(const Rectangle& below_title);

    void draw() const override;
    // Takes the colour that the ramps are made around. One that it is on already stays as it is, so that a
    // click there leads back to every colour of it.
    void set_color(Color color);
    // Returns the colour of the cell at `point`.
    [[nodiscard]] std::optional<Color> click(Point point) const;

private:
    [[nodiscard]] Rectangle cell(int row, int column) const;
    void paint_ramps();
    void hatch(const Rectangle& ramp);

    Color color_;                    // on every ramp
    Color last_with_hue_{255, 0, 0}; // gives greys their hue
    std::array<Color_Ramp, ramp_kind_count> ramps_;
    Pixel_Image image_;
};

} // namespace quadrelle
