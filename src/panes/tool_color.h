#pragma once

// A pane that shows one colour: a swatch, its numbers and its name.

#include "color/color.h"
#include "ui/pane.h"

#include <string_view>

namespace quadrelle {

class Tool_Color : public Pane {
public:
    // `position` is the top-left corner of the pane.
    Tool_Color(Point position, std::string_view title, Color color);

    void draw() const override;
    // To be called where a click on the pane does something.
    void draw_answer() const;

    [[nodiscard]] Color color() const { return color_; }
    void set_color(Color color) { color_ = color; }
    // Draws a lit frame around the swatch.
    void set_lit(bool is_lit) { is_lit_ = is_lit; }

private:
    [[nodiscard]] Rectangle swatch() const;

    Color color_;
    bool is_lit_ = false;
};

} // namespace quadrelle
