#pragma once

// The panes that show the colours of the two mouse buttons, and below them the panes that change these.

#include "base/input.h"
#include "panes/color_handles.h"
#include "panes/hint.h"
#include "panes/hsv_selector.h"
#include "panes/tool_color.h"
#include "panes/variations.h"
#include "tools/tool_state.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

namespace quadrelle {

// How many of them show, from the top.
enum class Tool_Color_Panes : std::size_t { none = 0, both_colors = 2, all = 5 };

class Tool_Color_Panel {
public:
    // Shows and sets the colours, which are borrowed.
    explicit Tool_Color_Panel(Tool_Colors& colors);

    [[nodiscard]] Color color(Mouse_Button button) const { return colors_.of(button); }
    void set_color(Mouse_Button button, Color color) { colors_.set(button, color); }
    // Returns the colour of the side that was clicked last: the handles and variations work on it.
    [[nodiscard]] Color current_color() const { return colors_.current(); }
    [[nodiscard]] Color other_color() const;
    [[nodiscard]] Mouse_Button active_side() const { return colors_.active_side; }
    // Makes that side the active one.
    void light(Mouse_Button side) { colors_.active_side = side; }
    void swap();
    // Makes the colours white and black, as at the start.
    void reset();

    // The colours are read anew each time; those panes that are not shown follow them too.
    void draw(Tool_Color_Panes shown);
    // A click on a colour makes its side the active one; the other panes pick and change colours, also along
    // the pointer's motions: `redraw` then draws and presents the window. True when something was chosen.
    bool click(const Pointer_State& pointer, const std::function<void()>& redraw);
    // Returns the button whose colour is in the pane at `point`, if any.
    [[nodiscard]] std::optional<Mouse_Button> button_color_at(Point point) const;
    // Returns which of the panes that are shown is at `point`, if any.
    [[nodiscard]] std::optional<Place> place_at(Point point, Tool_Color_Panes shown) const;

private:
    bool click_side(Point point);
    void show_current_color();
    [[nodiscard]] static std::size_t side(Mouse_Button button) {
        return button == Mouse_Button::left ? 0 : 1;
    }

    Tool_Colors& colors_;
    std::array<Tool_Color, 2> panes_;
    HSV_Selector selector_;
    Color_Handles handles_;
    Color_Variations variations_;
};

// Built and destroyed by the toolbox.
extern std::unique_ptr<Tool_Color_Panel> tool_colors;

} // namespace quadrelle
