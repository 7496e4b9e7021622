#include "color/hex_color.h"

#include "base/text_lines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>

namespace quadrelle {

namespace {

constexpr std::string_view digits = "0123456789abcdefABCDEF";

std::string doubled(std::string_view text) {
    std::string result;
    for (const char digit : text) {
        result.append(2, digit);
    }
    return result;
}

// Of 6 or 8 digits.
Color color_of(std::string text) {
    if (text.size() == 6) {
        text += "ff";
    }
    std::uint32_t word = 0;
    std::from_chars(text.data(), text.data() + text.size(), word, 16);
    // The text ends with alpha, the word of a colour begins with it.
    return Color::from_word(word >> 8U | word << 24U);
}

} // namespace

std::string hex_text(Color color) {
    std::array<char, 16> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "#%02x%02x%02x%02x", color.r, color.g, color.b, color.a);
    return {text.data(), static_cast<std::size_t>(color.a == 255 ? length - 2 : length)};
}

Hex_Reading read_hex(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('#')) {
        text.remove_prefix(1);
    }
    const std::size_t wrong = text.find_first_not_of(digits);
    if (wrong != std::string_view::npos) {
        return {std::nullopt, "\"" + std::string(text.substr(wrong, 1)) + "\" is no digit: 0 to 9, a to f"};
    }
    switch (text.size()) {
    case 3: return {color_of(doubled(text))};
    case 6:
    case 8: return {color_of(std::string(text))};
    default: return {std::nullopt, "It takes 3, 6 or 8 digits, not " + std::to_string(text.size())};
    }
}

} // namespace quadrelle
