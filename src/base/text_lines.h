#pragma once

// Texts of other programs, taken apart into lines, words and numbers.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quadrelle {

// Returns the bytes as text, without the mark that some programs put in front of UTF-8.
[[nodiscard]] std::string plain_text(std::span<const std::uint8_t> content);

[[nodiscard]] std::string_view trimmed(std::string_view text);
// Takes a number from 0 to `most` off the text's front, with the blanks before it. None where there is no
// such number.
[[nodiscard]] std::optional<int> take_number(std::string_view& text, int most);
// Takes a word off the text's front; blanks, commas and semicolons part words. Empty at the end.
[[nodiscard]] std::string_view take_word(std::string_view& text);

// The lines of a text that must outlive them, whichever way they end, without blanks around them.
class Text_Lines {
public:
    explicit Text_Lines(std::string_view text) : rest_(text) {}

    [[nodiscard]] std::optional<std::string_view> next();
    // Returns the number of the line that was read last, from 1 on.
    [[nodiscard]] int number() const { return number_; }

private:
    std::string_view rest_;
    int number_ = 0;
};

} // namespace quadrelle
