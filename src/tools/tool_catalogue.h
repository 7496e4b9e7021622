#pragma once

// The 17 drawing tools: what each is called, which command selects it, what its stroke is, and which controls
// it shows.

#include "base/table.h"
#include "commands/command.h"
#include "tools/canvas_action.h"

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
    Command command;      // the one that selects it
    Canvas_Action action; // its stroke; of a shape that comes in several types the outline
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
    {Tool::pen,                "Pen",                Command::pen,                Canvas_Action::pen,                colors, brush, _},
    {Tool::lightness_pen,      "Lightness pen",      Command::lightness_pen,      Canvas_Action::lightness_pen,      _,      brush, _},
    {Tool::colorize_pen,       "Colorize pen",       Command::colorize_pen,       Canvas_Action::colorize_pen,       colors, brush, _},
    {Tool::smudge_brush,       "Smudge brush",       Command::smudge_brush,       Canvas_Action::smudge_brush,       _,      brush, _},
    {Tool::dropper,            "Dropper",            Command::dropper,            Canvas_Action::dropper,            _,      _,     location},
    {Tool::flood_fill,         "Flood fill",         Command::flood_fill,         Canvas_Action::flood_fill,         colors, _,     _},
    {Tool::line,               "Line",               Command::line,               Canvas_Action::line,               colors, _,     location},
    {Tool::rectangle,          "Rectangle",          Command::rectangle,          Canvas_Action::rectangle_outline,  colors, _,     location},
    {Tool::ellipse,            "Ellipse",            Command::circle,             Canvas_Action::ellipse_outline,    colors, _,     location},
    {Tool::rectangle_selector, "Rectangle selector", Command::rectangle_selector, Canvas_Action::rectangle_selector, _,      _,     location},
    {Tool::circle_selector,    "Circle selector",    Command::circle_selector,    Canvas_Action::circle_selector,    _,      _,     location},
    {Tool::brush_selector,     "Brush selector",     Command::brush_selector,     Canvas_Action::brush_selector,     _,      brush, _},
    {Tool::wand_selector,      "Wand selector",      Command::wand_selector,      Canvas_Action::wand_selector,      _,      _,     _},
    {Tool::stamp_brush,        "Stamp brush",        Command::stamp_brush,        Canvas_Action::stamp_brush,        _,      _,     _},
    {Tool::scroll,             "Scroll",             Command::scroll,             Canvas_Action::scroll,             _,      _,     location},
    {Tool::rotate,             "Rotate",             Command::free_rotate,        Canvas_Action::free_rotate,        _,      _,     _},
    {Tool::selection,          "Selection",          Command::work_selection,     Canvas_Action::work_selection,     _,      _,     _},
}};
// clang-format on

static_assert(tool_count == static_cast<std::size_t>(Tool::count));
static_assert(rows_follow_their_ids(table));

} // namespace tool_rows

inline constexpr const std::array<Tool_Row, tool_count>& tool_table = tool_rows::table;

// The tool is not `Tool::none`.
[[nodiscard]] constexpr const Tool_Row& row_of(Tool tool) {
    return tool_table.at(static_cast<std::size_t>(tool));
}

// Returns the tool that the command selects, or none.
[[nodiscard]] constexpr Tool tool_of(Command command) {
    for (const Tool_Row& row : tool_table) {
        if (row.command == command) {
            return row.id;
        }
    }
    return Tool::none;
}

// Returns the stroke of a tool's command; rectangles and circles come in one kind for each shape type.
[[nodiscard]] constexpr Canvas_Action canvas_action_of(Command command, Shape_Type shape) {
    const Tool tool = tool_of(command);
    if (tool == Tool::none) {
        return Canvas_Action::none;
    }
    const Canvas_Action action = row_of(tool).action;
    const bool has_types =
        action == Canvas_Action::rectangle_outline || action == Canvas_Action::ellipse_outline;
    return has_types ? static_cast<Canvas_Action>(static_cast<std::int32_t>(action) +
                                                  static_cast<std::int32_t>(shape))
                     : action;
}

} // namespace quadrelle
