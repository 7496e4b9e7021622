#pragma once

// The icons of the commands that have one, on the icon bar, among the tools and in the undo history.

#include "commands/command.h"
#include "screen/sprite_table.h"
#include "tools/tool_catalogue.h"

#include <algorithm>
#include <array>

namespace quadrelle {

struct Command_Icon {
    Command command;
    Sprite sprite; // the plain one; its lit twin is the next sprite
};

constexpr std::array command_icons = std::to_array<Command_Icon>({
    {Command::pen, Sprite::icon_pen},
    {Command::lightness_pen, Sprite::icon_lighten_darken},
    {Command::colorize_pen, Sprite::icon_colorize},
    {Command::smudge_brush, Sprite::icon_smudge},
    {Command::stamp_brush, Sprite::icon_clone_brush},
    {Command::dropper, Sprite::icon_dropper},
    {Command::flood_fill, Sprite::icon_flood_fill},
    {Command::line, Sprite::icon_line},
    {Command::rectangle, Sprite::icon_rectangle},
    {Command::filled_rectangle, Sprite::icon_filled_rectangle},
    {Command::circle, Sprite::icon_circle},
    {Command::filled_circle, Sprite::icon_filled_circle},
    {Command::rectangle_selector, Sprite::icon_rectangle_selector},
    {Command::circle_selector, Sprite::icon_circle_selector},
    {Command::brush_selector, Sprite::icon_pen_selector},
    {Command::wand_selector, Sprite::icon_magic_wand},
    {Command::work_selection, Sprite::icon_sel_actions},
    {Command::scroll, Sprite::icon_mover},
    {Command::free_rotate, Sprite::icon_rotate},
    {Command::horizontal_seam_tool, Sprite::icon_horizontal_seam},
    {Command::vertical_seam_tool, Sprite::icon_vertical_seam},
    {Command::center_tile_on_view, Sprite::background_aligner}, // alone without a twin
});

// Only of a command in the table.
[[nodiscard]] constexpr Sprite icon_of(Command command) {
    return std::ranges::find(command_icons, command, &Command_Icon::command)->sprite;
}

static_assert(std::ranges::all_of(command_icons, [](const Command_Icon& icon) {
    return icon.sprite == Sprite::background_aligner || has_lit_twin(icon.sprite);
}));
static_assert(std::ranges::all_of(tool_table, [](const Tool_Row& tool) {
    return std::ranges::find(command_icons, tool.command, &Command_Icon::command) != command_icons.end();
}));

} // namespace quadrelle
