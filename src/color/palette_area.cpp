#include "color/palette_area.h"

#include "app/screen.h"
#include "color/standard_colors.h"
#include "tileset/sprite_sheet.h"

#include <array>
#include <cstdio>

namespace quadrelle {

namespace {

constexpr int pane_width = 202;
constexpr int name_height = 19;
constexpr Size grid_size{192, 96};
constexpr int coarse_columns = 8;
constexpr int coarse_rows = 4;
constexpr int button_gap = 4;
constexpr int selected_height = 33;
constexpr int swatch_edge = 23;
constexpr int text_gap = 7;

// The height below a pane's title bar that leaves this much room inside.
constexpr int height_for(int client_height) {
    return client_height + 2 * pane_border;
}

Rectangle button_at(const Rectangle& client, Sprite sprite, int right) {
    const Rectangle button = sprite_rect(sprite);
    return {right - button.width, client.y, button.width, button.height};
}

std::string numbers(Color color) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%d, %d, %d   #%02x%02x%02x", color.r, color.g, color.b, color.r,
                  color.g, color.b);
    return text.data();
}

// A light line inside of a dark one shows on every colour.
void draw_selection(const Rectangle& cell) {
    screen->draw_outline(cell, standard_color(Standard_Color::black));
    screen->draw_outline(cell.inset(1), standard_color(Standard_Color::white));
}

} // namespace

Palette_Area::Palette_Area(Point position, const Palette_Store& store)
    : Pane({position.x, position.y, pane_width, height_for(name_height + grid_size.height)}, "Palette"),
      store_(store) {}

int Palette_Area::columns() const {
    int columns = coarse_columns;
    while (columns * columns * coarse_rows / coarse_columns < store_.count(palette_)) {
        columns += coarse_columns;
    }
    return columns;
}

int Palette_Area::cell_edge() const {
    return grid_size.width / columns();
}

Rectangle Palette_Area::cell(int entry) const {
    const int edge = cell_edge();
    return {client_area().x + entry % columns() * edge,
            client_area().y + name_height + entry / columns() * edge, edge, edge};
}

Rectangle Palette_Area::more_button() const {
    return button_at(client_area(), Sprite::button_more, client_area().right());
}

Rectangle Palette_Area::less_button() const {
    return button_at(client_area(), Sprite::button_less, more_button().x - button_gap);
}

void Palette_Area::draw() const {
    Pane::draw();
    const Rectangle client = client_area();
    screen->draw_text(Font::pane, {client.x, client.y - 2}, store_.name(palette_));
    screen->draw_sprite(Sprite::button_less, {less_button().x, less_button().y});
    screen->draw_sprite(Sprite::button_more, {more_button().x, more_button().y});
    for (int entry = 0; entry < store_.count(palette_); ++entry) {
        screen->fill_rect(cell(entry), store_.color(palette_, entry));
    }
    if (store_.count(palette_) > 0) {
        draw_selection(cell(entry_));
    }
}

std::optional<Color> Palette_Area::click(Point point) {
    if (less_button().contains(point)) {
        step_palette(-1);
    } else if (more_button().contains(point)) {
        step_palette(1);
    }
    for (int entry = 0; entry < store_.count(palette_); ++entry) {
        if (cell(entry).contains(point)) {
            entry_ = entry;
            return selected_color();
        }
    }
    return std::nullopt;
}

void Palette_Area::step_palette(int step) {
    palette_ = (palette_ + step + store_.size()) % store_.size();
    entry_ = 0;
}

Color Palette_Area::move_selection(int dx, int dy) {
    const int column = entry_ % columns() + dx;
    const int entry = entry_ + dx + dy * columns();
    if (column >= 0 && column < columns() && entry >= 0 && entry < store_.count(palette_)) {
        entry_ = entry;
    }
    return selected_color();
}

Selected_Color_Area::Selected_Color_Area(Point position, const Palette_Area& palette)
    : Pane({position.x, position.y, pane_width, selected_height}, "Selected"), palette_(palette) {}

void Selected_Color_Area::draw() const {
    Pane::draw();
    const Rectangle client = client_area();
    const Rectangle swatch{client.x, client.y, swatch_edge, swatch_edge};
    screen->draw_outline(swatch, standard_color(Standard_Color::dark_frame));
    screen->fill_rect(swatch.inset(1), palette_.selected_color());
    screen->draw_text(Font::pane, {swatch.right() + text_gap, client.y + 2},
                      numbers(palette_.selected_color()));
}

} // namespace quadrelle
