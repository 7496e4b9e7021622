#include "panes/selected_color_area.h"

#include "color/color_data.h"
#include "color/hex_color.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "ui/control.h"
#include "ui/swatch.h"
#include "ui/text_button.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

constexpr int entry_edge = 40;
constexpr int text_gap = 7;
constexpr int text_rise = 7; // the letters begin five pixels below their position
constexpr int second_line = 14;
constexpr int button_height = 16;
constexpr int button_gap = 3;
constexpr int store_width = 62;
constexpr int button_text_rise = 3;
constexpr int stored_edge = 10;
constexpr int stored_inset = (button_height - stored_edge) / 2;
constexpr int stored_text_x = stored_inset + stored_edge + 4;

// In the title bar, with room for the frame around the lit one.
constexpr int button_color_edge = 17;
constexpr int button_color_inset = (pane_title_height - button_color_edge) / 2;
constexpr int button_color_step = button_color_edge + 8;

static_assert(window_layout::selected_color.height == window_layout::pane_height(entry_edge));

// The darker squares of what is transparent look like the background.
void draw_outlined_swatch(const Rectangle& area, Color color) {
    draw_swatch(area, color);
    screen->draw_outline(area.inset(-1), standard_color(Standard_Color::dark_frame));
}

} // namespace

Selected_Color_Area::Selected_Color_Area(Point position, const Palette_Area& palette,
                                         const Tool_Colors& colors)
    : Pane(below_title({position.x, position.y, window_layout::selected_color.width,
                        window_layout::selected_color.height}),
           "Selected"),
      palette_(palette), colors_(colors) {}

Rectangle Selected_Color_Area::button_color(Mouse_Button button) const {
    const int right = area.right() - button_color_inset - button_color_edge;
    return {right - (button == Mouse_Button::left ? button_color_step : 0), area.y + button_color_inset,
            button_color_edge, button_color_edge};
}

std::optional<Mouse_Button> Selected_Color_Area::button_color_at(Point point) const {
    for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
        if (button_color(button).contains(point)) {
            return button;
        }
    }
    return std::nullopt;
}

bool Selected_Color_Area::has_entry_at(Point point) const {
    return palette_.has_entries() && contains(point) && !store_button().contains(point) &&
           !adjust_button().contains(point);
}

Rectangle Selected_Color_Area::store_button() const {
    const Rectangle client = client_area();
    return {client.x + entry_edge + text_gap, client.bottom() - button_height, store_width, button_height};
}

Rectangle Selected_Color_Area::adjust_button() const {
    const Rectangle store = store_button();
    const int x = store.right() + button_gap;
    return {x, store.y, client_area().right() - x, store.height};
}

void Selected_Color_Area::draw() const {
    Pane::draw();
    for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
        const Rectangle swatch = button_color(button);
        draw_outlined_swatch(swatch, colors_.of(button));
        if (button == colors_.active_side) {
            screen->draw_outline(swatch.inset(-2), standard_color(Standard_Color::highlight));
        }
        draw_outlined_answer(swatch);
    }
    draw_entry();
    draw_store_button();
    draw_button(adjust_button(), {Font::pane, "Adjust HSV", -button_text_rise});
}

void Selected_Color_Area::draw_entry() const {
    const Rectangle client = client_area();
    const Rectangle swatch{client.x, client.y, entry_edge, entry_edge};
    draw_outlined_swatch(swatch.inset(1), palette_.selected_color());
    draw_outlined_answer(swatch.inset(1));
    const Point text{swatch.right() + text_gap, client.y - text_rise};
    screen->draw_text(Font::pane, text, color_numbers(palette_.selected_color()));
    screen->draw_text(Font::pane, {text.x, text.y + second_line}, hex_text(palette_.selected_color()));
}

void Selected_Color_Area::draw_store_button() const {
    const Rectangle button = store_button();
    screen->draw_panel(button, standard_color(Standard_Color::pane_frame));
    const Rectangle stored{button.x + stored_inset, button.y + stored_inset, stored_edge, stored_edge};
    draw_outlined_swatch(stored, colors_.current());
    screen->draw_text(Font::pane, {button.x + stored_text_x, button.y - button_text_rise}, "Store");
    draw_answer(button, usable_if(palette_.has_entries()));
}

} // namespace quadrelle
