#include "tools/tool_color.h"

#include "app/screen.h"
#include "color/color_data.h"
#include "color/standard_colors.h"

#include <string>

namespace quadrelle {

namespace {

constexpr int swatch_edge = 17;
constexpr int text_gap = 6;
constexpr int line_step = 17;
constexpr Size pane_size{202, 46};

std::string numbers(Color color) {
    return std::to_string(color.r) + ", " + std::to_string(color.g) + ", " + std::to_string(color.b) + ", " +
           std::to_string(color.a);
}

// Four squares behind the colour show how much of it is opaque.
void draw_swatch(const Rectangle& area, Color color) {
    constexpr int half = swatch_edge / 2;
    screen->fill_rect(area, standard_color(Standard_Color::checker_light));
    screen->fill_rect({area.x, area.y, half, half}, standard_color(Standard_Color::checker_dark));
    screen->fill_rect({area.x + half, area.y + half, area.width - half, area.height - half},
                      standard_color(Standard_Color::checker_dark));
    screen->fill_rect(area, color);
}

} // namespace

Tool_Color::Tool_Color(Point position, std::string_view title, Color color)
    : Pane({position.x, position.y, pane_size.width, pane_size.height}, title), color_(color) {}

void Tool_Color::draw() const {
    Pane::draw();
    const Rectangle client = client_area();
    const Rectangle swatch{client.x, client.y, swatch_edge, swatch_edge};
    draw_swatch(swatch, color_);
    if (is_lit_) {
        screen->draw_outline(swatch.inset(-2), standard_color(Standard_Color::highlight));
    }
    const int text_x = swatch.right() + text_gap;
    screen->draw_text(Font::pane, {text_x, client.y - 1}, numbers(color_));
    screen->draw_text(Font::pane, {text_x, client.y - 1 + line_step}, color_data->shown_name(color_));
}

} // namespace quadrelle
