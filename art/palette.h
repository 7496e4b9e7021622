#pragma once

// The colours that the characters of a grid stand for.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quadrelle {

struct Rgb {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;

    bool operator==(const Rgb&) const = default;
};

// The sheet's colour key.
constexpr Rgb transparent_colour{255, 0, 255};
constexpr char transparent_character = '.';

class Palette {
public:
    Palette();

    // Takes "X rrggbb" and a comment behind it; false when it reads otherwise or redefines transparency.
    bool define(std::string_view entry);

    std::optional<Rgb> colour(char character) const;

private:
    std::array<std::optional<Rgb>, 128> colours_;
};

} // namespace quadrelle
