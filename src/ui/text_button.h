#pragma once

// Buttons with a label.

#include "base/geometry.h"
#include "screen/font_table.h"

#include <string_view>

namespace quadrelle {

constexpr int text_button_height = 27;

enum class Button_Look { plain, chosen };

// Draws a raised button with its label in the middle of its width and `drop` pixels below its top.
void draw_button(const Rectangle& area, Font font, std::string_view label, int drop);

// Makes a button that is drawn there look as if it could not be used.
void draw_veil(const Rectangle& area);

// A button of a dialog that lays out itself.
class Text_Button {
public:
    // The label must outlive the button.
    constexpr Text_Button(std::string_view label, const Rectangle& area) : label_(label), area_(area) {}

    void draw(Button_Look look) const;
    [[nodiscard]] bool contains(Point point) const { return area_.contains(point); }
    [[nodiscard]] const Rectangle& area() const { return area_; }

private:
    std::string_view label_;
    Rectangle area_;
};

} // namespace quadrelle
