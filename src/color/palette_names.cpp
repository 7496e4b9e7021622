#include "color/palette_names.h"

#include "base/text_lines.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quadrelle {

namespace {

constexpr std::size_t most_characters = 100; // of a name
constexpr std::size_t longest_stem = 80;     // in bytes

// Where the characters beyond so many begin.
std::size_t start_of_rest(const std::string& text, std::size_t most) {
    std::size_t end = 0;
    for (std::size_t count = 0; end < text.size(); ++end) {
        count += (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80U ? 0 : 1;
        if (count > most) {
            break;
        }
    }
    return end;
}

// Returns at most so many bytes of it, and no part of a character.
std::string cut_at_character(const std::string& text, std::size_t most) {
    std::size_t end = std::min(text.size(), most);
    while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80U) {
        --end;
    }
    return text.substr(0, end);
}

// Whether a file system takes it for a device, whatever extension follows.
bool is_device(const std::string& stem) {
    constexpr std::array<std::string_view, 4> plain{"con", "prn", "aux", "nul"};
    constexpr std::array<std::string_view, 2> numbered{"com", "lpt"};
    std::string name = stem.substr(0, stem.find('.'));
    std::ranges::transform(name, name.begin(),
                           [](char letter) { return letter >= 'A' && letter <= 'Z' ? letter + 32 : letter; });
    const bool has_number = name.size() == 4 && name[3] >= '1' && name[3] <= '9';
    return std::ranges::count(plain, name) > 0 ||
           (has_number && std::ranges::count(numbered, name.substr(0, 3)) > 0);
}

} // namespace

std::string clean_name(std::string name) {
    std::ranges::replace_if(
        name, [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
    name.resize(std::min(start_of_rest(name, most_characters), longest_palette_name));
    name = trimmed(name);
    return name.empty() ? "Palette" : name;
}

std::string without_number(const std::string& name) {
    const std::size_t end = name.find_last_not_of("0123456789");
    const bool has_number = end != std::string::npos && end > 0 && end + 1 < name.size() && name[end] == ' ';
    return has_number ? name.substr(0, end) : name;
}

std::string palette_stem(const std::string& palette_name) {
    constexpr std::string_view unfit = "/\\:*?\"<>|";
    std::string stem = cut_at_character(palette_name, longest_stem);
    if (stem.empty()) {
        return "palette";
    }
    std::ranges::replace_if(
        stem, [unfit](char letter) { return unfit.find(letter) != std::string_view::npos; }, '_');
    for (char* const end : {&stem.front(), &stem.back()}) {
        *end = *end == '.' || *end == ' ' ? '_' : *end;
    }
    return is_device(stem) ? "_" + stem : stem;
}

} // namespace quadrelle
