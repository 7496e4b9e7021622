#pragma once

// The colours of the two mouse buttons, and the panes that show them.

#include "app/input.h"
#include "tools/tool_color.h"

#include <array>
#include <memory>

namespace quadrelle {

class Tool_Color_Panel {
public:
    // The top-left corner of the upper pane.
    explicit Tool_Color_Panel(Point position);

    // Any button but the left one stands for the right one.
    [[nodiscard]] Color color(Mouse_Button button) const { return panes_.at(side(button)).color(); }
    void set_color(Mouse_Button button, Color color);
    // Of the side that was clicked last, the left one at first.
    [[nodiscard]] Color current_color() const { return color(active_); }
    [[nodiscard]] Mouse_Button active_side() const { return active_; }
    void swap();
    // White and black, as at start.
    void reset();

    void draw();
    // A click makes its side the active one. True when that changed something.
    bool click(Point point);
    // The side whose pane is there, or none.
    [[nodiscard]] Mouse_Button side_at(Point point) const;

private:
    void move(Point position);
    [[nodiscard]] static std::size_t side(Mouse_Button button) {
        return button == Mouse_Button::left ? 0 : 1;
    }

    std::array<Tool_Color, 2> panes_;
    Mouse_Button active_ = Mouse_Button::left;
};

// Built and destroyed by the toolbox.
extern std::unique_ptr<Tool_Color_Panel> tool_colors;

} // namespace quadrelle
