#include "ui/text_field.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "screen/text_input.h"
#include "ui/shown_text.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int padding = 6;
constexpr unsigned char delete_character = 0x7f;

// Letters of the small font stand lower in their line.
int text_rise(Font font) {
    return font == Font::pane ? 1 : 0;
}

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
    move_caret(characters_.size());
}

void Text_Field::select_all() {
    move_caret(characters_.size());
    is_all_selected_ = true;
}

Text_Change Text_Field::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::typed_text: return insert(event.text);
    case Input_Kind::key_press: return handle_key(event.chord);
    case Input_Kind::button_press:
        if (event.clicks > 1) {
            select_all();
        } else {
            place_caret(event.pointer.point());
        }
        return Text_Change::none;
    default: return Text_Change::none;
    }
}

// In place of what is selected, else at the caret; without control characters and what is beyond the limit.
Text_Change Text_Field::insert(std::string_view typed) {
    if (typed.empty()) {
        return Text_Change::none;
    }
    if (is_all_selected_) {
        clear();
    }
    std::vector<std::string> added = characters_of(typed);
    std::erase_if(added, is_control);
    added.resize(std::min(added.size(), most_characters_ - std::min(most_characters_, characters_.size())));
    characters_.insert(characters_.begin() + static_cast<std::ptrdiff_t>(caret_), added.begin(), added.end());
    caret_ += added.size();
    return Text_Change::changed;
}

Text_Change Text_Field::handle_key(const Key_Chord& chord) {
    if (chord == Key_Chord{'a', Modifier::control}) {
        select_all();
    } else if (chord == Key_Chord{'v', Modifier::control}) {
        return insert(clipboard_text());
    }
    switch (chord.key) {
    case key::backspace: return erase(caret_ - 1);
    case key::delete_key: return erase(caret_);
    case key::left: move_caret(is_all_selected_ || caret_ == 0 ? 0 : caret_ - 1); break;
    case key::right: move_caret(is_all_selected_ ? characters_.size() : caret_ + 1); break;
    case key::home: move_caret(0); break;
    case key::end: move_caret(characters_.size()); break;
    default: break;
    }
    return Text_Change::none;
}

// All that is selected; else an index before the first or behind the last character erases nothing.
Text_Change Text_Field::erase(std::size_t index) {
    if (is_all_selected_) {
        clear();
        return Text_Change::changed;
    }
    if (index >= characters_.size()) {
        return Text_Change::none;
    }
    characters_.erase(characters_.begin() + static_cast<std::ptrdiff_t>(index));
    move_caret(index);
    return Text_Change::changed;
}

void Text_Field::clear() {
    characters_.clear();
    move_caret(0);
}

void Text_Field::move_caret(std::size_t caret) {
    caret_ = std::min(caret, characters_.size());
    is_all_selected_ = false;
}

int Text_Field::width_of(std::size_t from, std::size_t to) const {
    int width = 0;
    for (std::size_t i = from; i < to; ++i) {
        const char letter = shown_letter(characters_[i]);
        width += screen->text_width(font_, {&letter, 1});
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
    const int height = line_height(font_);
    return {area_.x + padding, area_.y + (area_.height - height) / 2, area_.width - 2 * padding, height};
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
    move_caret(place);
}

void Text_Field::draw(Focus focus, Text_Verdict verdict) const {
    const Color edge = standard_color(verdict == Text_Verdict::refused ? Standard_Color::orange
                                      : focus == Focus::yes            ? Standard_Color::highlight
                                                                       : Standard_Color::frame);
    screen->fill_rect(area_, standard_color(Standard_Color::dark_frame));
    screen->draw_outline(area_, edge);
    draw_text(focus);
}

void Text_Field::draw_text(Focus focus) const {
    const Rectangle room = text_area();
    const std::size_t first = first_shown();
    std::string shown;
    int width = 0;
    for (std::size_t i = first; i < characters_.size(); ++i) {
        const int letter_width = width_of(i, i + 1);
        if (width + letter_width > room.width) {
            break;
        }
        width += letter_width;
        shown += shown_letter(characters_[i]);
    }
    if (is_all_selected_ && focus == Focus::yes) {
        screen->fill_rect({room.x - 1, room.y + 1, width + 2, room.height - 2},
                          standard_color(Standard_Color::highlight_deep));
    }
    screen->draw_text(font_, {room.x, room.y - text_rise(font_)}, shown);
    if (focus == Focus::yes) {
        screen->fill_rect({room.x + width_of(first, caret_), room.y + 2, 1, room.height - 4},
                          standard_color(Standard_Color::white));
    }
}

} // namespace quadrelle
