#include "ui/text_field.h"

#include "app/screen.h"
#include "color/standard_colors.h"
#include "ui/shown_text.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr Font font = Font::regular;
constexpr int padding = 6;
constexpr int text_drop = 3;
constexpr int caret_inset = 5;
constexpr unsigned char delete_character = 0x7f;

bool is_control(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    return first < first_character || first == delete_character;
}

} // namespace

std::string Text_Field::text() const {
    std::string text;
    for (const std::string& character : characters_) {
        text += character;
    }
    return text;
}

void Text_Field::set_text(std::string_view text) {
    characters_ = characters_of(text);
    caret_ = characters_.size();
}

void Text_Field::insert(std::string_view typed) {
    for (const std::string& character : characters_of(typed)) {
        if (!is_control(character) && characters_.size() < most_characters) {
            characters_.insert(characters_.begin() + static_cast<std::ptrdiff_t>(caret_), character);
            ++caret_;
        }
    }
}

bool Text_Field::handle_key(Keycode pressed) {
    const auto erase = [this](std::size_t index) {
        characters_.erase(characters_.begin() + static_cast<std::ptrdiff_t>(index));
    };
    const std::size_t end = characters_.size();
    switch (pressed) {
    case key::left: caret_ -= caret_ > 0 ? 1 : 0; return true;
    case key::right: caret_ += caret_ < end ? 1 : 0; return true;
    case key::home: caret_ = 0; return true;
    case key::end: caret_ = end; return true;
    case key::backspace:
        if (caret_ > 0) {
            erase(--caret_);
        }
        return true;
    case key::delete_key:
        if (caret_ < end) {
            erase(caret_);
        }
        return true;
    default: return false;
    }
}

int Text_Field::width_of(std::size_t from, std::size_t to) const {
    int width = 0;
    for (std::size_t i = from; i < to; ++i) {
        const char letter = shown_letter(characters_[i]);
        width += screen->text_width(font, {&letter, 1});
    }
    return width;
}

// As far to the left as the caret allows.
std::size_t Text_Field::first_shown() const {
    const int room = text_area().width;
    std::size_t first = caret_;
    for (int width = 0; first > 0; --first) {
        width += width_of(first - 1, first);
        if (width > room) {
            break;
        }
    }
    return first;
}

Rectangle Text_Field::text_area() const {
    return {area_.x + padding, area_.y + text_drop, area_.width - 2 * padding, area_.height - 2 * text_drop};
}

void Text_Field::place_caret(Point clicked) {
    std::size_t place = first_shown();
    int x = text_area().x;
    for (; place < characters_.size(); ++place) {
        const int width = width_of(place, place + 1);
        if (clicked.x < x + (width + 1) / 2 || x + width > text_area().right()) {
            break;
        }
        x += width;
    }
    caret_ = place;
}

void Text_Field::draw(Focus focus) const {
    screen->fill_rect(area_, standard_color(Standard_Color::dark_frame));
    screen->draw_outline(
        area_, standard_color(focus == Focus::yes ? Standard_Color::highlight : Standard_Color::frame));
    const Rectangle room = text_area();
    const std::size_t first = first_shown();
    std::string shown;
    for (std::size_t i = first, width = 0; i < characters_.size(); ++i) {
        width += static_cast<std::size_t>(width_of(i, i + 1));
        if (width > static_cast<std::size_t>(room.width)) {
            break;
        }
        shown += shown_letter(characters_[i]);
    }
    screen->draw_text(font, {room.x, room.y}, shown);
    if (focus == Focus::yes) {
        screen->fill_rect(
            {room.x + width_of(first, caret_), area_.y + caret_inset, 1, area_.height - 2 * caret_inset},
            standard_color(Standard_Color::white));
    }
}

} // namespace quadrelle
