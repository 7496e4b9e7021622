#include "ui/shown_text.h"

#include "screen/screen.h"

#include <algorithm>
#include <array>

namespace quadrelle {

namespace {

constexpr std::string_view dots = "...";

std::size_t announced_length(unsigned char lead) {
    if (lead >= 0xf0) {
        return lead <= 0xf4 ? 4 : 1;
    }
    if (lead >= 0xe0) {
        return 3;
    }
    return lead >= 0xc2 ? 2 : 1;
}

// Of the first character; the text must have one.
std::size_t character_length(std::string_view text) {
    const std::size_t length = announced_length(static_cast<unsigned char>(text.front()));
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U; };
    return length <= text.size() && std::ranges::all_of(text.substr(1, length - 1), continues) ? length : 1;
}

std::string shortened(std::string_view text, std::size_t kept, Left_Out left_out) {
    const std::size_t head = left_out == Left_Out::start ? 0 : kept / 2;
    return std::string(text.substr(0, head)).append(dots).append(text.substr(text.size() - (kept - head)));
}

} // namespace

std::vector<std::string> characters_of(std::string_view text) {
    std::vector<std::string> characters;
    while (!text.empty()) {
        const std::size_t length = character_length(text);
        characters.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return characters;
}

namespace {

// The character's number; it must be whole.
char32_t code_point(std::string_view character) {
    constexpr std::array<unsigned, 5> lead_bits{0, 0x7f, 0x1f, 0x0f, 0x07};
    char32_t code = static_cast<unsigned char>(character.front()) & lead_bits.at(character.size());
    for (const char byte : character.substr(1)) {
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3fU);
    }
    return code;
}

struct Letters {
    char32_t first;
    std::string_view nearest; // of the characters from there on
};

// clang-format off
constexpr std::array<Letters, 4> nearest_letters{{
    {0x00a0, " !cL??|?\"ca<--R-o+23'u?.,1o>????"
             "AAAAAAACEEEEIIIIDNOOOOOxOUUUUYTsaaaaaaaceeeeiiiidnooooo/ouuuuyty"},
    {0x0100, "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlL"
             "lLlNnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs"},
    {0x0218, "SsTt"},
    {0x2010, "------||'','\"\"\"\"++.>..."},
}};
// clang-format on

char nearest_letter(char32_t code) {
    for (const Letters& letters : nearest_letters) {
        if (code >= letters.first && code - letters.first < letters.nearest.size()) {
            return letters.nearest[code - letters.first];
        }
    }
    return '?';
}

} // namespace

char shown_letter(std::string_view character) {
    constexpr char last_letter = '~';
    const char first = character.front();
    if (character.size() > 1) {
        return nearest_letter(code_point(character));
    }
    return first >= first_character && first <= last_letter ? first : '?';
}

std::string shown_text(std::string_view text) {
    std::string shown;
    for (const std::string& character : characters_of(text)) {
        shown += shown_letter(character);
    }
    return shown;
}

std::string fitted_text(Font font, std::string_view text, int width, Left_Out left_out) {
    std::string shown = shown_text(text);
    if (screen->text_width(font, shown) <= width) {
        return shown;
    }
    std::size_t fits = 0;
    std::size_t too_many = shown.size();
    while (too_many - fits > 1) {
        const std::size_t kept = (fits + too_many) / 2;
        const bool has_room = screen->text_width(font, shortened(shown, kept, left_out)) <= width;
        (has_room ? fits : too_many) = kept;
    }
    return shortened(shown, fits, left_out);
}

} // namespace quadrelle
