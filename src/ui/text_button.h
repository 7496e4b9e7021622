#pragma once

// Buttons with a label.

#include "base/geometry.h"
#include "screen/font_table.h"
#include "ui/control.h"

#include <string_view>

namespace quadrelle {

constexpr int text_button_height = 27;

enum class Button_Look { plain, chosen, by_default };

struct Button_Label {
    Font font = Font::regular;
    std::string_view text;
    int drop = 0; // below the button's top; it stands in the middle of its width
};
// Draws a raised button, which answers the pointer.
void draw_button(const Rectangle& area, const Button_Label& label, Usable usable = Usable::yes);

// Draws the ring around the button that Return stands for.
void draw_default_mark(const Rectangle& button);

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
