#pragma once

// What the commands that move pixels do, whether to a tile, to what is selected or to what floats.

#include "commands/command.h"
#include "pixels/turn_and_mirror.h"

#include <algorithm>
#include <array>

namespace quadrelle {

struct Transform_Row {
    Command command;
    const Placement* placement; // null for a scroll
    Tile_Point step;            // of a scroll, to the right and down
};

constexpr std::array transform_table = std::to_array<Transform_Row>({
    {Command::rotate, &turned_right, {}},
    {Command::rotate_back, &turned_left, {}},
    {Command::mirror, &mirrored, {}},
    {Command::flip, &flipped, {}},
    {Command::scroll_left, nullptr, {-1, 0}},
    {Command::scroll_right, nullptr, {1, 0}},
    {Command::scroll_up, nullptr, {0, -1}},
    {Command::scroll_down, nullptr, {0, 1}},
});

// Null for a command that moves no pixels.
[[nodiscard]] constexpr const Transform_Row* find_transform(Command command) {
    const auto* const row = std::ranges::find(transform_table, command, &Transform_Row::command);
    return row == transform_table.end() ? nullptr : row;
}

} // namespace quadrelle
