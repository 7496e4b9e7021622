#pragma once

// A line of text that is typed, with a caret. Which events reach it is its owner's business.

#include "app/geometry.h"
#include "app/input.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

enum class Focus { no, yes };

class Text_Field {
public:
    static constexpr int height = 29;
    static constexpr std::size_t most_characters = 4000;

    explicit Text_Field(const Rectangle& area) : area_(area) {}

    [[nodiscard]] const Rectangle& area() const { return area_; }
    // UTF-8.
    [[nodiscard]] std::string text() const;
    // With the caret at its end.
    void set_text(std::string_view text);
    // At the caret; without control characters and what is beyond the limit.
    void insert(std::string_view typed);
    // False for a key that edits nothing.
    bool handle_key(Keycode pressed);
    void place_caret(Point clicked);
    // The part around the caret that has room.
    void draw(Focus focus) const;

private:
    [[nodiscard]] int width_of(std::size_t from, std::size_t to) const;
    [[nodiscard]] std::size_t first_shown() const;
    [[nodiscard]] Rectangle text_area() const;

    Rectangle area_;
    std::vector<std::string> characters_;
    std::size_t caret_ = 0; // before the character with that index
};

} // namespace quadrelle
