#pragma once

// One line of text that the user edits. Knows nothing of what the text means.

#include "app/events.h"
#include "app/geometry.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quadrelle {

enum class Field_Mark { none, refused };
enum class Field_Focus { no, yes };
enum class Text_Change { none, changed };

class Hex_Field {
public:
    Hex_Field(const Rectangle& area, std::size_t most_characters);

    [[nodiscard]] const std::string& text() const { return text_; }
    // All of it is selected: what is typed next takes its place.
    void set_text(std::string_view text);

    // Text, the keys that delete and move, and Ctrl+a.
    Text_Change handle(const SDL_Event& event);
    // In place of what is selected, else at the caret. Letters outside of ASCII become "?", and what does not
    // fit is dropped.
    Text_Change insert(std::string_view typed);
    void draw(Field_Mark mark, Field_Focus focus) const;
    [[nodiscard]] const Rectangle& area() const { return area_; }

private:
    Text_Change handle_key(const SDL_KeyboardEvent& event);
    void press(Point point);
    Text_Change erase(std::size_t first);
    void move_caret(std::size_t caret);
    [[nodiscard]] int x_of(std::size_t index) const;

    Rectangle area_;
    std::size_t most_;
    std::string text_;
    std::size_t caret_ = 0;
    bool is_all_selected_ = false;
};

} // namespace quadrelle
