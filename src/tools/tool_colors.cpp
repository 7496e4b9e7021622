#include "tools/tool_colors.h"

namespace quadrelle {

std::unique_ptr<Tool_Color_Panel> tool_colors;

namespace {

constexpr Color left_start(255, 255, 255);
constexpr Color right_start(0, 0, 0);

} // namespace

Tool_Color_Panel::Tool_Color_Panel(Point position)
    : panes_{Tool_Color(position, "Left button color", left_start),
             Tool_Color(position, "Right button color", right_start)} {
    move(position);
}

void Tool_Color_Panel::set_color(Mouse_Button button, Color color) {
    panes_.at(side(button)).set_color(color);
}

void Tool_Color_Panel::swap() {
    const Color left = color(Mouse_Button::left);
    set_color(Mouse_Button::left, color(Mouse_Button::right));
    set_color(Mouse_Button::right, left);
}

void Tool_Color_Panel::reset() {
    set_color(Mouse_Button::left, left_start);
    set_color(Mouse_Button::right, right_start);
}

void Tool_Color_Panel::move(Point position) {
    for (Tool_Color& pane : panes_) {
        pane.move(position.x, position.y);
        position.y = pane.area.bottom() + element_gap;
    }
}

void Tool_Color_Panel::draw() {
    for (Tool_Color& pane : panes_) {
        pane.set_lit(&pane == &panes_.at(side(active_)));
        pane.draw();
    }
}

bool Tool_Color_Panel::click(Point point) {
    for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
        if (panes_.at(side(button)).contains(point.x, point.y) && active_ != button) {
            active_ = button;
            return true;
        }
    }
    return false;
}

Mouse_Button Tool_Color_Panel::side_at(Point point) const {
    for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
        if (panes_.at(side(button)).area.contains(point)) {
            return button;
        }
    }
    return Mouse_Button::none;
}

} // namespace quadrelle
