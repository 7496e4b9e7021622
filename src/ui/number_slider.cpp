#include "ui/number_slider.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/checkerboard.h"
#include "ui/control.h"
#include "ui/swatch.h"

#include <algorithm>
#include <array>
#include <string>

namespace quadrelle {

namespace {

constexpr int label_width = 74;
constexpr int bar_height = 14;
constexpr int number_width = 46;
constexpr int gap = 4;
// One fill for so many columns of the bar.
constexpr int shade_width = 2;
constexpr int text_rise = 1;

Rectangle take_right(Rectangle& rest, int width, int height) {
    const Rectangle part{rest.right() - width, rest.y + (rest.height - height) / 2, width, height};
    rest.width -= width + gap;
    return part;
}

Rectangle take_button(Rectangle& rest, Sprite sprite) {
    const Rectangle on_sheet = sprite_rect(sprite);
    return take_right(rest, on_sheet.width, on_sheet.height);
}

int text_y(const Rectangle& area) {
    return area.y + (area.height - line_height(Font::pane)) / 2 - text_rise;
}

} // namespace

Number_Slider::Number_Slider(const Number_Slider_Row& row, Point position, int width)
    : row_(row), area_{position.x, position.y, width, number_slider_height} {
    Rectangle rest = area_;
    more_ = take_button(rest, Sprite::button_more);
    if (row_.middle) {
        middle_ = take_button(rest, Sprite::button_middle);
    }
    number_ = take_right(rest, number_width, number_slider_height - 4);
    less_ = take_button(rest, Sprite::button_less);
    bar_ = take_right(rest, rest.width - label_width - gap, bar_height);
}

Rectangle Number_Slider::part_area(Slider_Part part) const {
    switch (part) {
    case Slider_Part::bar: return {bar_.x - gap, area_.y, bar_.width + 2 * gap, area_.height};
    case Slider_Part::less: return less_;
    case Slider_Part::number: return number_;
    case Slider_Part::middle: return middle_;
    case Slider_Part::more: return more_;
    case Slider_Part::none: break;
    }
    return {};
}

Slider_Part Number_Slider::part_at(Point point) const {
    constexpr std::array parts = {Slider_Part::less, Slider_Part::number, Slider_Part::middle,
                                  Slider_Part::more, Slider_Part::bar};
    const auto part =
        std::ranges::find_if(parts, [&](Slider_Part each) { return part_area(each).contains(point); });
    return part == parts.end() ? Slider_Part::none : *part;
}

int Number_Slider::number_at(int x) const {
    const int last = bar_.width - 1;
    const int column = std::clamp(x - bar_.x, 0, last);
    return row_.low + (column * (row_.high - row_.low) * 2 + last) / (2 * last);
}

void Number_Slider::draw(int number, Focus focus, const std::function<Color(int)>& color_of) const {
    screen->draw_text(Font::pane, {area_.x, text_y(area_)}, row_.label);
    if (focus == Focus::yes) {
        const int width = screen->text_width(Font::pane, row_.label);
        screen->fill_rect({area_.x, area_.bottom() - 3, width, 2}, standard_color(Standard_Color::highlight));
    }
    draw_bar(color_of);
    const int x = bar_.x + (number - row_.low) * (bar_.width - 1) / (row_.high - row_.low);
    draw_mark({x - 2, bar_.y - 3, 5, bar_.height + 6});
    screen->draw_sprite(Sprite::button_less, {less_.x, less_.y});
    draw_number(number);
    if (row_.middle) {
        screen->draw_sprite(Sprite::button_middle, {middle_.x, middle_.y});
    }
    screen->draw_sprite(Sprite::button_more, {more_.x, more_.y});
    draw_answers(number);
}

void Number_Slider::draw_answers(int number) const {
    draw_answer(less_, usable_if(row_.wraps || number > row_.low));
    draw_answer(number_);
    if (row_.middle) {
        draw_answer(middle_, usable_if(number != row_.middle));
    }
    draw_answer(more_, usable_if(row_.wraps || number < row_.high));
}

void Number_Slider::draw_bar(const std::function<Color(int)>& color_of) const {
    screen->draw_outline(bar_.inset(-1), standard_color(Standard_Color::dark_frame));
    if (color_of(row_.low).a < 255 || color_of(row_.high).a < 255) {
        draw_checkerboard(bar_);
    }
    for (int x = bar_.x; x < bar_.right(); x += shade_width) {
        screen->fill_rect({x, bar_.y, std::min(shade_width, bar_.right() - x), bar_.height},
                          color_of(number_at(x)));
    }
}

void Number_Slider::draw_number(int number) const {
    screen->fill_rect(number_, standard_color(Standard_Color::pane_frame));
    screen->draw_bevel(number_, standard_color(Standard_Color::pane_frame), Bevel::sunken);
    const std::string text = std::to_string(number) + std::string(row_.unit);
    const int width = screen->text_width(Font::pane, text);
    screen->draw_text(Font::pane, {number_.x + (number_.width - width) / 2, text_y(number_)}, text);
}

} // namespace quadrelle
