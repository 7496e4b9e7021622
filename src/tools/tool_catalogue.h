#pragma once

// The 17 drawing tools: what each is called, which command selects it, and which controls it shows.

#include "app/command.h"
#include "tileset/sprite_table.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quadrelle {

enum class Tool : std::int32_t {
    none = -1,
    pen,
    lightness_pen,
    colorize_pen,
    smudge_brush,
    dropper,
    flood_fill,
    line,
    rectangle,
    ellipse,
    rectangle_selector,
    circle_selector,
    brush_selector,
    wand_selector,
    stamp_brush,
    scroll,
    rotate,
    selection,
    count
};

struct Tool_Row {
    Tool id;
    std::string_view name;
    Command command; // the one that selects it
    Sprite icon;     // the plain one; its lit twin is the next sprite
    bool uses_tool_colors;
    bool uses_brush; // deliberately not the stamp brush: the flag is about the brush selector
    bool shows_location;
};

constexpr std::size_t tool_count = 17;

namespace tool_rows {

constexpr bool colors = true;
constexpr bool brush = true;
constexpr bool location = true;
constexpr bool _ = false;

// clang-format off
constexpr std::array<Tool_Row, tool_count> table{{
    {Tool::pen,                "Pen",                Command::pen,                Sprite::icon_pen,                colors, brush, _},
    {Tool::lightness_pen,      "Lightness pen",      Command::lightness_pen,      Sprite::icon_lighten_darken,     _,      brush, _},
    {Tool::colorize_pen,       "Colorize pen",       Command::colorize_pen,       Sprite::icon_colorize,           colors, brush, _},
    {Tool::smudge_brush,       "Smudge brush",       Command::smudge_brush,       Sprite::icon_smudge,             _,      brush, _},
    {Tool::dropper,            "Dropper",            Command::dropper,            Sprite::icon_dropper,            _,      _,     location},
    {Tool::flood_fill,         "Flood fill",         Command::flood_fill,         Sprite::icon_flood_fill,         colors, _,     _},
    {Tool::line,               "Line",               Command::line,               Sprite::icon_line,               colors, _,     location},
    {Tool::rectangle,          "Rectangle",          Command::rectangle,          Sprite::icon_rectangle,          colors, _,     location},
    {Tool::ellipse,            "Ellipse",            Command::circle,             Sprite::icon_circle,             colors, _,     location},
    {Tool::rectangle_selector, "Rectangle selector", Command::rectangle_selector, Sprite::icon_rectangle_selector, _,      _,     location},
    {Tool::circle_selector,    "Circle selector",    Command::circle_selector,    Sprite::icon_circle_selector,    _,      _,     location},
    {Tool::brush_selector,     "Brush selector",     Command::brush_selector,     Sprite::icon_pen_selector,       _,      brush, _},
    {Tool::wand_selector,      "Wand selector",      Command::wand_selector,      Sprite::icon_magic_wand,         _,      _,     _},
    {Tool::stamp_brush,        "Stamp brush",        Command::stamp_brush,        Sprite::icon_clone_brush,        _,      _,     _},
    {Tool::scroll,             "Scroll",             Command::scroll,             Sprite::icon_mover,              _,      _,     location},
    {Tool::rotate,             "Rotate",             Command::free_rotate,        Sprite::icon_rotate,             _,      _,     _},
    {Tool::selection,          "Selection",          Command::work_selection,     Sprite::icon_sel_actions,        _,      _,     _},
}};
// clang-format on

constexpr bool follow_their_ids() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (static_cast<std::size_t>(table[i].id) != i) {
            return false;
        }
    }
    return true;
}

static_assert(tool_count == static_cast<std::size_t>(Tool::count));
static_assert(follow_their_ids());

} // namespace tool_rows

inline constexpr const std::array<Tool_Row, tool_count>& tool_table = tool_rows::table;

// Not for `Tool::none`.
[[nodiscard]] constexpr const Tool_Row& row_of(Tool tool) {
    return tool_table.at(static_cast<std::size_t>(tool));
}

// The tool that the command selects, or none.
[[nodiscard]] constexpr Tool tool_of(Command command) {
    for (const Tool_Row& row : tool_table) {
        if (row.command == command) {
            return row.id;
        }
    }
    return Tool::none;
}

} // namespace quadrelle
