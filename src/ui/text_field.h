#pragma once

// One line of UTF-8 text that the user edits. Knows nothing of what the text means; which events reach it is
// its owner's business.

#include "base/geometry.h"
#include "base/input.h"
#include "screen/font_table.h"
#include "ui/focus.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

enum class Text_Change { none, changed };
enum class Text_Verdict { fine, refused };

class Text_Field {
public:
    Text_Field(const Rectangle& area, Font font, std::size_t most_characters)
        : area_(area), font_(font), most_characters_(most_characters) {}

    [[nodiscard]] const Rectangle& area() const { return area_; }
    [[nodiscard]] std::string text() const;
    // Puts the caret at the end of the text.
    void set_text(std::string_view text);
    // Selects all: what is typed next takes its place.
    void select_all();

    // Takes typed text, clicks, the keys that delete and move, Ctrl+a and Ctrl+v.
    Text_Change handle(const Input_Event& event);
    // Draws the part around the caret that has room.
    void draw(Focus focus, Text_Verdict verdict = Text_Verdict::fine) const;

private:
    Text_Change insert(std::string_view typed);
    Text_Change handle_key(const Key_Chord& chord);
    Text_Change erase(std::size_t index);
    void clear();
    void move_caret(std::size_t caret);
    void place_caret(Point clicked);
    void draw_text(Focus focus) const;
    [[nodiscard]] int width_of(std::size_t from, std::size_t to) const;
    [[nodiscard]] std::size_t first_shown() const;
    [[nodiscard]] Rectangle text_area() const;

    Rectangle area_;
    Font font_;
    std::size_t most_characters_;
    std::vector<std::string> characters_;
    std::size_t caret_ = 0; // before the character with that index
    bool is_all_selected_ = false;
};

} // namespace quadrelle
