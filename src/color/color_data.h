#pragma once

// The database of named colours, and what the program says about a colour. Draws nothing.

#include "color/color.h"

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

struct Named_Color {
    std::string_view name;
    Color color;
};

// The colours are the program's own and often not those of common lists.
// clang-format off
constexpr std::array named_colors = {
    Named_Color{"Red",           {196, 2, 52}},
    Named_Color{"Crimson",       {220, 20, 60}},
    Named_Color{"Pink",          {255, 192, 203}},
    Named_Color{"Cardinal red",  {197, 30, 58}},
    Named_Color{"Carmine",       {150, 0, 24}},
    Named_Color{"Rosewood",      {101, 0, 11}},
    Named_Color{"Old rose",      {192, 128, 129}},
    Named_Color{"Light red",     {255, 127, 127}},
    Named_Color{"Garnet",        {115, 54, 53}},
    Named_Color{"Vermilion",     {227, 66, 52}},
    Named_Color{"Dark red",      {139, 0, 0}},
    Named_Color{"Amber",         {255, 191, 0}},
    Named_Color{"Amethyst",      {153, 102, 204}},
    Named_Color{"Antique white", {250, 235, 215}},
    Named_Color{"Aqua",          {0, 255, 255}},
    Named_Color{"Aquamarine",    {127, 255, 212}},
    Named_Color{"Azure",         {0, 127, 255}},
    Named_Color{"Beige",         {245, 245, 220}},
    Named_Color{"Black",         {0, 0, 0}},
    Named_Color{"Dark blue",     {0, 0, 255}},
    Named_Color{"Pigment blue",  {51, 51, 153}},
    Named_Color{"Burnt sienna",  {233, 116, 81}},
    Named_Color{"Burnt umber",   {138, 51, 36}},
    Named_Color{"Cadmium green", {0, 107, 60}},
    Named_Color{"$$$",           {0, 0, 0}}, // ends the table and is no colour
};
// clang-format on
static_assert(named_colors.size() == 25);

class Color_Data {
public:
    // Takes the rows before the first whose name begins with "$"; they must outlive this. A colour that
    // stands there twice is fatal.
    explicit Color_Data(std::span<const Named_Color> table = named_colors);

    // Returns the name of exactly this colour, alpha included: only opaque colours have one.
    [[nodiscard]] std::optional<std::string_view> name_of(Color color) const;
    // Returns the name, or "---" for a colour that has none.
    [[nodiscard]] std::string_view shown_name(Color color) const;
    // Appends every named colour in the order of the table.
    void all(std::vector<Named_Color>& list) const;

private:
    std::span<const Named_Color> rows_;
};

// Returns the channels and alpha as in "97, 18, 124, 255".
[[nodiscard]] std::string color_numbers(Color color);
// Returns channels, alpha and luminance in per cent as three lines, broken by "\r".
[[nodiscard]] std::string color_information(Color color);

// It is built at start-up.
extern std::unique_ptr<Color_Data> color_data;

} // namespace quadrelle
