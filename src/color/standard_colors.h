#pragma once

// The twenty fixed colours that the interface is drawn with.

#include "base/table.h"
#include "color/color.h"

#include <array>
#include <cstddef>

namespace quadrelle {

enum class Standard_Color {
    white,
    faint_white,
    black,
    transparent,
    dark_frame,
    pane_background,
    frame,
    middle_grey,
    light_grey,
    pane_frame, // and the fill of text buttons
    highlight,
    highlight_deep,
    list_passive,
    list_active,
    pink,
    color_key, // transparent magenta
    orange,
    red,
    checker_dark,
    checker_light
};

struct Standard_Color_Row {
    Standard_Color id;
    Color color;
};

// clang-format off
constexpr std::array standard_colors = {
    Standard_Color_Row{Standard_Color::white,           {255, 255, 255}},
    Standard_Color_Row{Standard_Color::faint_white,     {255, 255, 255, 80}},
    Standard_Color_Row{Standard_Color::black,           {0, 0, 0}},
    Standard_Color_Row{Standard_Color::transparent,     {0, 0, 0, 0}},
    Standard_Color_Row{Standard_Color::dark_frame,      {64, 64, 64}},
    Standard_Color_Row{Standard_Color::pane_background, {137, 137, 137}},
    Standard_Color_Row{Standard_Color::frame,           {100, 100, 100}},
    Standard_Color_Row{Standard_Color::middle_grey,     {128, 128, 128}},
    Standard_Color_Row{Standard_Color::light_grey,      {200, 200, 200}},
    Standard_Color_Row{Standard_Color::pane_frame,      {112, 112, 112}},
    Standard_Color_Row{Standard_Color::highlight,       {0, 222, 255}},
    Standard_Color_Row{Standard_Color::highlight_deep,  {0, 60, 230}},
    Standard_Color_Row{Standard_Color::list_passive,    {70, 96, 86}},
    Standard_Color_Row{Standard_Color::list_active,     {70, 130, 75}},
    Standard_Color_Row{Standard_Color::pink,            {250, 50, 250}},
    Standard_Color_Row{Standard_Color::color_key,       {255, 0, 255, 0}},
    Standard_Color_Row{Standard_Color::orange,          {200, 100, 50}},
    Standard_Color_Row{Standard_Color::red,             {255, 0, 0}},
    Standard_Color_Row{Standard_Color::checker_dark,    {101, 101, 101}},
    Standard_Color_Row{Standard_Color::checker_light,   {169, 169, 169}},
};
// clang-format on

static_assert(standard_colors.size() == 20);
static_assert(rows_follow_their_ids(standard_colors));

[[nodiscard]] constexpr Color standard_color(Standard_Color id) {
    return standard_colors[static_cast<std::size_t>(id)].color;
}

} // namespace quadrelle
