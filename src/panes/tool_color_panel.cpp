#include "panes/tool_color_panel.h"

#include "ui/window_layout.h"

#include <utility>

namespace quadrelle {

std::unique_ptr<Tool_Color_Panel> tool_colors;

Tool_Color_Panel::Tool_Color_Panel(Tool_Colors& colors)
    : colors_(colors), panes_{Tool_Color(corner_of(window_layout::left_color), "Left button color",
                                         colors.left),
                              Tool_Color(corner_of(window_layout::right_color), "Right button color",
                                         colors.right)},
      selector_(corner_of(window_layout::hsv_selector),
                [this](Mouse_Button button, Color color) { set_color(button, color); }),
      handles_(corner_of(window_layout::handles),
               [this](Color color) { set_color(colors_.active_side, color); }),
      variations_(below_title(window_layout::variations)) {}

void Tool_Color_Panel::show_current_color() {
    handles_.set_color(current_color());
    variations_.set_color(current_color());
}

void Tool_Color_Panel::swap() {
    std::swap(colors_.left, colors_.right);
}

void Tool_Color_Panel::reset() {
    const Tool_Colors start;
    colors_.left = start.left;
    colors_.right = start.right;
}

void Tool_Color_Panel::draw(Tool_Color_Panes shown) {
    show_current_color();
    if (shown == Tool_Color_Panes::none) {
        return;
    }
    for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
        Tool_Color& pane = panes_.at(side(button));
        pane.set_color(colors_.of(button));
        pane.set_lit(button == colors_.active_side);
        pane.draw();
        pane.draw_answer();
    }
    if (shown == Tool_Color_Panes::all) {
        selector_.draw();
        handles_.draw();
        variations_.draw();
    }
}

bool Tool_Color_Panel::click(const Pointer_State& pointer, const std::function<void()>& redraw) {
    const Point point = pointer.point();
    if (const std::optional<Color> variation = variations_.click(point)) {
        set_color(pointer.button, *variation);
        return true;
    }
    return click_side(point) || selector_.click(pointer.button, point, redraw) ||
           handles_.click(point, redraw);
}

Color Tool_Color_Panel::other_color() const {
    return colors_.of(colors_.active_side == Mouse_Button::left ? Mouse_Button::right : Mouse_Button::left);
}

std::optional<Mouse_Button> Tool_Color_Panel::button_color_at(Point point) const {
    for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
        if (panes_.at(side(button)).contains(point)) {
            return button;
        }
    }
    return std::nullopt;
}

bool Tool_Color_Panel::click_side(Point point) {
    const std::optional<Mouse_Button> button = button_color_at(point);
    if (!button || button == colors_.active_side) {
        return false;
    }
    light(*button);
    return true;
}

std::optional<Place> Tool_Color_Panel::place_at(Point point, Tool_Color_Panes shown) const {
    const std::array<std::pair<const Pane*, Place>, static_cast<std::size_t>(Tool_Color_Panes::all)> panes{
        {{&panes_.at(side(Mouse_Button::left)), Place::left_color},
         {&panes_.at(side(Mouse_Button::right)), Place::right_color},
         {&selector_, Place::hsv_selector},
         {&handles_, Place::handles},
         {&variations_, Place::variations}}};
    for (std::size_t i = 0; i < static_cast<std::size_t>(shown); ++i) {
        if (panes.at(i).first->area.contains(point)) {
            return panes.at(i).second;
        }
    }
    return std::nullopt;
}

} // namespace quadrelle
