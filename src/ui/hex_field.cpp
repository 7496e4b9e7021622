#include "ui/hex_field.h"

#include "app/screen.h"
#include "color/standard_colors.h"
#include "tileset/sprite_sheet.h"

#include <algorithm>
#include <cstdlib>

namespace quadrelle {

namespace {

constexpr Font font = Font::pane;
constexpr int padding = 6;
constexpr int text_rise = 1;

// One character for each of the text; the bytes that go on with one do not count.
std::string as_ascii(std::string_view text) {
    std::string result;
    for (const char each : text) {
        const auto byte = static_cast<unsigned char>(each);
        if (byte >= 0xc0 || byte < ' ' || byte == 0x7f) {
            result += '?';
        } else if (byte < 0x80) {
            result += each;
        }
    }
    return result;
}

} // namespace

Hex_Field::Hex_Field(const Rectangle& area, std::size_t most_characters)
    : area_(area), most_(most_characters) {}

void Hex_Field::set_text(std::string_view text) {
    text_ = text;
    caret_ = text_.size();
    is_all_selected_ = true;
}

Text_Change Hex_Field::handle(const SDL_Event& event) {
    switch (event.type) {
    case SDL_EVENT_TEXT_INPUT: return insert(event.text.text);
    case SDL_EVENT_KEY_DOWN: return handle_key(event.key);
    case SDL_EVENT_MOUSE_BUTTON_DOWN:
        if (event.button.clicks > 1) {
            set_text(std::string(text_));
        } else {
            press(pointer_of(event.button).point());
        }
        return Text_Change::none;
    default: return Text_Change::none;
    }
}

Text_Change Hex_Field::insert(std::string_view typed) {
    if (typed.empty()) {
        return Text_Change::none;
    }
    if (is_all_selected_) {
        text_.clear();
        move_caret(0);
    }
    const std::string fitting = as_ascii(typed).substr(0, most_ - text_.size());
    text_.insert(caret_, fitting);
    caret_ += fitting.size();
    return Text_Change::changed;
}

Text_Change Hex_Field::handle_key(const SDL_KeyboardEvent& event) {
    switch (event.key) {
    case key::backspace: return erase(caret_ - 1);
    case key::delete_key: return erase(caret_);
    case key::left: move_caret(is_all_selected_ || caret_ == 0 ? 0 : caret_ - 1); break;
    case key::right: move_caret(is_all_selected_ ? text_.size() : caret_ + 1); break;
    case key::home: move_caret(0); break;
    case key::end: move_caret(text_.size()); break;
    case 'a': is_all_selected_ = is_all_selected_ || (event.mod & SDL_KMOD_CTRL) != 0; break;
    default: break;
    }
    return Text_Change::none;
}

// An index before the first or behind the last character erases nothing.
Text_Change Hex_Field::erase(std::size_t first) {
    if (is_all_selected_) {
        text_.clear();
        move_caret(0);
        return Text_Change::changed;
    }
    if (first >= text_.size()) {
        return Text_Change::none;
    }
    text_.erase(first, 1);
    move_caret(first);
    return Text_Change::changed;
}

void Hex_Field::move_caret(std::size_t caret) {
    caret_ = std::min(caret, text_.size());
    is_all_selected_ = false;
}

int Hex_Field::x_of(std::size_t index) const {
    return area_.x + padding + screen->text_width(font, std::string_view(text_).substr(0, index));
}

// To the boundary of characters that is nearest.
void Hex_Field::press(Point point) {
    std::size_t nearest = 0;
    for (std::size_t i = 1; i <= text_.size(); ++i) {
        if (std::abs(x_of(i) - point.x) < std::abs(x_of(nearest) - point.x)) {
            nearest = i;
        }
    }
    move_caret(nearest);
}

void Hex_Field::draw(Field_Mark mark, Field_Focus focus) const {
    const Color edge = standard_color(mark == Field_Mark::refused ? Standard_Color::orange
                                      : focus == Field_Focus::yes ? Standard_Color::highlight
                                                                  : Standard_Color::dark_frame);
    screen->fill_rect(area_, standard_color(Standard_Color::dark_frame));
    screen->draw_outline(area_, edge);
    const int height = line_height(font);
    const int y = area_.y + (area_.height - height) / 2;
    if (is_all_selected_ && focus == Field_Focus::yes) {
        screen->fill_rect({x_of(0) - 1, y + 1, x_of(text_.size()) - x_of(0) + 2, height - 2},
                          standard_color(Standard_Color::highlight_deep));
    }
    screen->draw_text(font, {x_of(0), y - text_rise}, text_);
    if (focus == Field_Focus::yes) {
        screen->fill_rect({x_of(caret_), y + 2, 1, height - 4}, standard_color(Standard_Color::white));
    }
}

} // namespace quadrelle
