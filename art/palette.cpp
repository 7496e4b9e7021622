#include "palette.h"

#include <charconv>

namespace quadrelle {

namespace {

constexpr std::size_t colour_start = 2;
constexpr std::size_t entry_length = 8;

bool stands_for_a_colour(char character) {
    return character > ' ' && character < 127 && character != transparent_character;
}

} // namespace

Palette::Palette() {
    colours_[static_cast<unsigned char>(transparent_character)] = transparent_colour;
}

bool Palette::define(std::string_view entry) {
    if (entry.size() < entry_length || !stands_for_a_colour(entry[0]) || entry[1] != ' ') {
        return false;
    }
    if (entry.size() > entry_length && entry[entry_length] != ' ') {
        return false;
    }

    unsigned value = 0;
    const char* start = entry.data() + colour_start;
    const char* end = entry.data() + entry_length;
    if (std::from_chars(start, end, value, 16).ptr != end) {
        return false;
    }

    const Rgb colour{static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                     static_cast<std::uint8_t>(value)};
    if (colour == transparent_colour) {
        return false;
    }
    colours_[static_cast<unsigned char>(entry[0])] = colour;
    return true;
}

std::optional<Rgb> Palette::colour(char character) const {
    const auto index = static_cast<unsigned char>(character);
    return index < colours_.size() ? colours_[index] : std::nullopt;
}

} // namespace quadrelle
