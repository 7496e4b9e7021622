#include "panes/tool_color.h"

#include "color/color_data.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "ui/control.h"
#include "ui/swatch.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

constexpr int swatch_edge = 17;
constexpr int text_gap = 6;
constexpr int line_step = 17;
constexpr Size pane_size{window_layout::left_color.width, window_layout::left_color.height};

} // namespace

Tool_Color::Tool_Color(Point position, std::string_view title, Color color)
    : Pane(below_title({position.x, position.y, pane_size.width, pane_size.height}), title), color_(color) {}

Rectangle Tool_Color::swatch() const {
    return {client_area().x, client_area().y, swatch_edge, swatch_edge};
}

void Tool_Color::draw_answer() const {
    draw_outlined_answer(swatch(), control_state(client_area()));
}

void Tool_Color::draw() const {
    Pane::draw();
    const Rectangle client = client_area();
    draw_swatch(swatch(), color_);
    if (is_lit_) {
        screen->draw_outline(swatch().inset(-2), standard_color(Standard_Color::highlight));
    }
    const int text_x = swatch().right() + text_gap;
    screen->draw_text(Font::pane, {text_x, client.y - 1}, color_numbers(color_));
    screen->draw_text(Font::pane, {text_x, client.y - 1 + line_step}, color_data->shown_name(color_));
}

} // namespace quadrelle
