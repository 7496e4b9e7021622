#include "views/color_database_view.h"

#include "color/hex_color.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/control.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int row_height = 28;
constexpr int column_gap = 6;
constexpr int row_gap = 2;
constexpr int inset = 3;
constexpr int text_gap = 6;

} // namespace

Color_Database_View::Color_Database_View(Color_Edit& edit, const Rectangle& area) : edit_(edit), area_(area) {
    color_data->all(colors_);
}

Rectangle Color_Database_View::row(std::size_t index) const {
    const int width = (area_.width - column_gap) / 2;
    const auto column = static_cast<int>(index / rows_in_column());
    const auto place = static_cast<int>(index % rows_in_column());
    return {area_.x + column * (width + column_gap), area_.y + place * row_height, width,
            row_height - row_gap};
}

std::optional<std::size_t> Color_Database_View::current() const {
    const auto found = std::ranges::find(colors_, edit_.color(), &Named_Color::color);
    return found == colors_.end() ? std::nullopt
                                  : std::optional(static_cast<std::size_t>(found - colors_.begin()));
}

void Color_Database_View::draw() const {
    for (std::size_t i = 0; i < colors_.size(); ++i) {
        draw_row(i);
    }
}

void Color_Database_View::draw_row(std::size_t index) const {
    const Rectangle box = row(index);
    const bool is_current = index == current();
    screen->draw_box(box,
                     standard_color(is_current ? Standard_Color::list_active : Standard_Color::list_passive));
    if (is_current) {
        screen->draw_outline(box, standard_color(Standard_Color::white));
    }
    draw_answer(box);
    const Rectangle swatch{box.x + inset, box.y + inset, box.height - 2 * inset, box.height - 2 * inset};
    screen->fill_rect(swatch, standard_color(Standard_Color::black));
    screen->fill_rect(swatch.inset(1), colors_[index].color);
    const int y = box.y + (box.height - line_height(Font::pane)) / 2 - 1;
    screen->draw_text(Font::pane, {swatch.right() + text_gap, y}, colors_[index].name);
    const std::string code = hex_text(colors_[index].color);
    screen->draw_text(Font::pane, {box.right() - text_gap - screen->text_width(Font::pane, code), y}, code);
}

List_Answer Color_Database_View::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::button_press: return press(event);
    case Input_Kind::key_press: return handle_key(event.chord.key);
    default: return List_Answer::none;
    }
}

List_Answer Color_Database_View::press(const Input_Event& event) {
    const Pointer_State pointer = event.pointer;
    for (std::size_t i = 0; i < colors_.size() && pointer.button == Mouse_Button::left; ++i) {
        if (row(i).contains(pointer.point())) {
            // The first of the two clicks took it, unless that was one on another row.
            const bool was_current = i == current();
            static_cast<void>(take(i));
            return was_current && event.clicks > 1 ? List_Answer::accepted : List_Answer::taken;
        }
    }
    return List_Answer::none;
}

List_Answer Color_Database_View::handle_key(Keycode pressed) {
    const auto last = static_cast<int>(colors_.size()) - 1;
    const auto column = static_cast<int>(rows_in_column());
    int step = 0;
    switch (pressed) {
    case key::up: step = -1; break;
    case key::down: step = 1; break;
    case key::left: step = -column; break;
    case key::right: step = column; break;
    default: return List_Answer::none;
    }
    const std::optional<std::size_t> from = current();
    const int target = from ? static_cast<int>(*from) + step : 0;
    return target < 0 || target > last ? List_Answer::none : take(static_cast<std::size_t>(target));
}

List_Answer Color_Database_View::take(std::size_t index) {
    edit_.set_color(colors_[index].color);
    return List_Answer::taken;
}

} // namespace quadrelle
