#include "panes/palette_area.h"

#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/control.h"
#include "ui/shown_text.h"
#include "ui/swatch.h"
#include "ui/text_button.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quadrelle {

namespace {

constexpr int name_height = 19;
constexpr Size grid_size{192, 80};
constexpr int least_columns = 8;
constexpr int largest_cell_height = 20;
constexpr int button_gap = 4;
constexpr int swatch_width = 24;
constexpr int swatch_gap = 8;
constexpr Size menu_button_size{62, 16};
constexpr int menu_button_drop = 2;
constexpr int menu_text_rise = 3;
constexpr int cell_mark_width = 2;
constexpr int corner_edge = 7; // of the mark of a colour in use

static_assert(window_layout::palette.height == window_layout::pane_height(name_height + grid_size.height));

Rectangle button_at(const Rectangle& client, Sprite sprite, int right) {
    const Rectangle button = sprite_rect(sprite);
    return {right - button.width, client.y, button.width, button.height};
}

} // namespace

Palette_Area::Palette_Area(Point position, Palette_List& list, const Tool_Colors& colors)
    : Pane(below_title({position.x, position.y, window_layout::palette.width, window_layout::palette.height}),
           "Palette"),
      list_(list), colors_(colors), palette_(list.first_shown()) {}

// The columns with which the shorter edges of the cells are longest, or else their areas are largest.
Palette_Area::Grid Palette_Area::grid() const {
    constexpr int column_step = 4;
    Grid best;
    // More columns make narrower cells.
    const auto can_be_better = [&best](int columns) {
        return grid_size.width / columns >= std::min(best.cell.width, best.cell.height);
    };
    for (int columns = least_columns; columns <= grid_size.width && can_be_better(columns);
         columns += column_step) {
        const int rows = std::max((count() + columns - 1) / columns, 1);
        const Size cell{grid_size.width / columns, std::min(grid_size.height / rows, largest_cell_height)};
        const auto worth = [](Size size) {
            return std::pair(std::min(size.width, size.height), size.width * size.height);
        };
        if (worth(cell) > worth(best.cell)) {
            best = {{client_area().x, client_area().y + name_height}, columns, cell};
        }
    }
    return best;
}

Rectangle Palette_Area::Grid::at(int entry) const {
    return {corner.x + entry % columns * cell.width, corner.y + entry / columns * cell.height, cell.width,
            cell.height};
}

Rectangle Palette_Area::menu_button() const {
    return {area.right() - menu_button_size.width, area.y + menu_button_drop, menu_button_size.width,
            menu_button_size.height};
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

Rectangle Palette_Area::name_area() const {
    const Rectangle client = client_area();
    return {client.x, client.y, transparent_swatch().x - client.x - button_gap, less_button().height};
}

std::string Palette_Area::shown_name() const {
    return fitted_text(Font::pane, palette().name, name_area().width, Left_Out::middle);
}

void Palette_Area::draw() const {
    Pane::draw();
    const Rectangle client = client_area();
    draw_button(menu_button(), {Font::pane, "Menu", -menu_text_rise});
    screen->draw_text(Font::pane, {client.x, client.y - 2}, shown_name());
    draw_answer(name_area());
    draw_step_button(Sprite::button_less, less_button());
    draw_step_button(Sprite::button_more, more_button());
    draw_swatch(transparent_swatch(), standard_color(Standard_Color::transparent));
    screen->draw_outline(transparent_swatch(), standard_color(Standard_Color::dark_frame));
    draw_outlined_answer(transparent_swatch());
    draw_entries();
}

// While an entry is dragged, they stand as they would if it was let go.
void Palette_Area::draw_entries() const {
    const std::vector<Color> colors = with_moved_entry(drop_.value_or(entry_));
    const Grid cells = grid();
    for (int entry = 0; entry < count(); ++entry) {
        draw_swatch(cells.at(entry), colors[static_cast<std::size_t>(entry)]);
    }
    if (!list_.is_kept(palette_) && !drop_) {
        draw_empty_entries();
    }
    draw_marks();
}

void Palette_Area::draw_marks() const {
    if (has_entries()) {
        draw_cell_mark(grid().at(drop_.value_or(entry_)));
    }
    if (!drop_) {
        draw_color_in_use(Mouse_Button::left);
        draw_color_in_use(Mouse_Button::right);
    }
    if (!is_pointed_at(client_area())) {
        return;
    }
    if (const std::optional<int> pointed = entry_at(followed_pointer().position)) {
        draw_outlined_answer(grid().at(*pointed));
    }
}

// Black up to the last one is how a palette of the store begins that has not all its colours yet.
void Palette_Area::draw_empty_entries() const {
    const std::vector<Color>& colors = palette().colors;
    const Color black = standard_color(Standard_Color::black);
    for (int entry = count() - 1; entry >= 0 && colors[static_cast<std::size_t>(entry)] == black; --entry) {
        const Rectangle empty = grid().at(entry);
        screen->fill_rect(empty, standard_color(Standard_Color::dark_frame));
        screen->draw_line({empty.x, empty.bottom() - 1}, {empty.right() - 1, empty.y},
                          standard_color(Standard_Color::frame));
    }
}

// In the upper corner at that button's side, as far as the cells have room for it. Of several that are equal
// the selected one has the mark, or else the first one.
void Palette_Area::draw_color_in_use(Mouse_Button button) const {
    const std::vector<Color>& colors = palette().colors;
    const Color color = colors_.of(button);
    const auto found = std::ranges::find(colors, color);
    if (found == colors.end()) {
        return;
    }
    const bool is_selected = selected_color() == color;
    const Rectangle place = is_selected ? grid().at(entry_).inset(cell_mark_width)
                                        : grid().at(static_cast<int>(found - colors.begin()));
    const int edge = std::min({corner_edge, place.width / 2, place.height});
    const bool is_left = button == Mouse_Button::left;
    for (int row = 0; row < edge; ++row) {
        const int length = edge - row;
        const int x = is_left ? place.x : place.right() - length;
        screen->fill_rect({x, place.y + row, length, 1}, standard_color(Standard_Color::white));
    }
    const int side = is_left ? place.x : place.right() - 1;
    const int end = is_left ? side + edge - 1 : side - edge + 1;
    screen->draw_line({end, place.y}, {side, place.y + edge - 1}, standard_color(Standard_Color::black));
}

void Palette_Area::draw_step_button(Sprite sprite, const Rectangle& place) const {
    screen->draw_sprite(sprite, {place.x, place.y});
    draw_answer(place, usable_if(list_.size() > 1));
}

std::optional<Color> Palette_Area::click(Point point) {
    const int step = less_button().contains(point) ? -1 : more_button().contains(point) ? 1 : 0;
    if (step != 0) {
        show((palette_ + step + list_.size()) % list_.size());
        select(0);
    }
    const std::optional<int> entry = entry_at(point);
    if (!entry) {
        return std::nullopt;
    }
    entry_ = *entry;
    return selected_color();
}

void Palette_Area::drag(const std::function<void()>& redraw) {
    follow_pointer("palette", redraw,
                   [this](const Input_Event& motion) { drop_ = entry_at(motion.pointer.point()); });
    const std::optional<int> target = std::exchange(drop_, std::nullopt);
    if (target && *target != entry_) {
        change(with_moved_entry(*target));
        select(*target);
    }
}

std::vector<Color> Palette_Area::with_moved_entry(int target) const {
    std::vector<Color> colors = palette().colors;
    const auto from = colors.begin() + entry_;
    const auto to = colors.begin() + target;
    if (from < to) {
        std::rotate(from, from + 1, to + 1);
    } else if (to < from) {
        std::rotate(to, from, from + 1);
    }
    return colors;
}

std::optional<int> Palette_Area::entry_at(Point point) const {
    const Grid cells = grid();
    for (int entry = 0; entry < count(); ++entry) {
        if (cells.at(entry).contains(point)) {
            return entry;
        }
    }
    return std::nullopt;
}

void Palette_Area::show(int index) {
    palette_ = std::clamp(index, 0, list_.size() - 1);
    list_.set_first_shown(palette_);
    select(entry_);
}

void Palette_Area::select(int entry) {
    entry_ = std::clamp(entry, 0, std::max(count() - 1, 0));
}

void Palette_Area::select_color(Color color) {
    const std::vector<Color>& colors = palette().colors;
    const auto found = std::ranges::find(colors, color);
    if (found != colors.end() && selected_color() != color) {
        entry_ = static_cast<int>(found - colors.begin());
    }
}

Color Palette_Area::selected_color() const {
    return has_entries() ? palette().colors.at(static_cast<std::size_t>(entry_)) : Color();
}

void Palette_Area::store(Color color) {
    std::vector<Color> colors = palette().colors;
    if (has_entries()) {
        colors.at(static_cast<std::size_t>(entry_)) = color;
        change(std::move(colors));
    }
}

void Palette_Area::change(std::vector<Color> colors) {
    show(list_.change(palette_, std::move(colors)));
}

void Palette_Area::insert(const std::vector<Color>& inserted) {
    std::vector<Color> colors = palette().colors;
    colors.insert(colors.begin() + entry_ + 1, inserted.begin(), inserted.end());
    change(std::move(colors));
    select(entry_ + static_cast<int>(inserted.size()));
}

void Palette_Area::add(Palette palette) {
    show(list_.add(std::move(palette)));
    select(0);
}

Color Palette_Area::move_selection(int dx, int dy) {
    const int columns = grid().columns;
    const int column = entry_ % columns + dx;
    const int entry = entry_ + dx + dy * columns;
    if (column >= 0 && column < columns && entry >= 0 && entry < count()) {
        entry_ = entry;
    }
    return selected_color();
}

} // namespace quadrelle
