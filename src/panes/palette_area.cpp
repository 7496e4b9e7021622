#include "panes/palette_area.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/swatch.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

constexpr int name_height = 19;
constexpr Size grid_size{192, 80};
constexpr int coarse_columns = 8;
constexpr int coarse_rows = 4;
constexpr int button_gap = 4;
constexpr int swatch_width = 24;
constexpr int swatch_gap = 8;

static_assert(window_layout::palette.height == window_layout::pane_height(name_height + grid_size.height));

Rectangle button_at(const Rectangle& client, Sprite sprite, int right) {
    const Rectangle button = sprite_rect(sprite);
    return {right - button.width, client.y, button.width, button.height};
}

} // namespace

Palette_Area::Palette_Area(Point position, Palette_Store& store)
    : Pane(below_title({position.x, position.y, window_layout::palette.width, window_layout::palette.height}),
           "Palette"),
      store_(store) {}

int Palette_Area::divisions() const {
    int divisions = 1;
    while (divisions * divisions * coarse_columns * coarse_rows < store_.count(palette_)) {
        ++divisions;
    }
    return divisions;
}

int Palette_Area::columns() const {
    return coarse_columns * divisions();
}

Size Palette_Area::cell_size() const {
    return {grid_size.width / columns(), grid_size.height / (coarse_rows * divisions())};
}

Rectangle Palette_Area::cell(int entry) const {
    const Size size = cell_size();
    return {client_area().x + entry % columns() * size.width,
            client_area().y + name_height + entry / columns() * size.height, size.width, size.height};
}

Rectangle Palette_Area::more_button() const {
    return button_at(client_area(), Sprite::button_more, client_area().right());
}

Rectangle Palette_Area::less_button() const {
    return button_at(client_area(), Sprite::button_less, more_button().x - button_gap);
}

Rectangle Palette_Area::transparent_swatch() const {
    const Rectangle button = less_button();
    return {button.x - swatch_gap - swatch_width, button.y, swatch_width, button.height};
}

// A palette from a file may have any name: what has no room is left out.
std::string Palette_Area::shown_name() const {
    std::string name = store_.name(palette_).substr(0, static_cast<std::size_t>(grid_size.width));
    std::erase_if(name, [](char letter) { return letter == '\r'; });
    const int room = transparent_swatch().x - client_area().x - button_gap;
    while (screen->text_width(Font::pane, name) > room) {
        name.pop_back();
    }
    return name;
}

void Palette_Area::draw() const {
    Pane::draw();
    const Rectangle client = client_area();
    screen->draw_text(Font::pane, {client.x, client.y - 2}, shown_name());
    screen->draw_sprite(Sprite::button_less, {less_button().x, less_button().y});
    screen->draw_sprite(Sprite::button_more, {more_button().x, more_button().y});
    draw_swatch(transparent_swatch(), standard_color(Standard_Color::transparent));
    screen->draw_outline(transparent_swatch(), standard_color(Standard_Color::dark_frame));
    for (int entry = 0; entry < store_.count(palette_); ++entry) {
        draw_swatch(cell(entry), store_.color(palette_, entry));
    }
    if (has_entries()) {
        draw_cell_mark(cell(entry_));
    }
}

std::optional<Color> Palette_Area::click(Point point) {
    if (less_button().contains(point)) {
        step_palette(-1);
    } else if (more_button().contains(point)) {
        step_palette(1);
    }
    const std::optional<int> entry = entry_at(point);
    if (!entry) {
        return std::nullopt;
    }
    entry_ = *entry;
    return selected_color();
}

std::optional<int> Palette_Area::entry_at(Point point) const {
    for (int entry = 0; entry < store_.count(palette_); ++entry) {
        if (cell(entry).contains(point)) {
            return entry;
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

} // namespace quadrelle
