#pragma once

// Keys beside those of the command table: further keys of commands, and keys of what is no command.

#include "base/input.h"
#include "commands/command_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quadrelle {

// What a key does that is no command.
enum class Key_Action : std::int32_t {
    none,
    select_all,
    plot_floating,
    next_set,
    smaller_brush,
    larger_brush,
    toggle_grid,
    toggle_surroundings,
    eraser,
    export_again,
};

// Whether a key that stays down acts again and again.
enum class Key_Hold { acts_once, goes_on };

struct Key_Row {
    Modifier modifier;
    Keycode key;
    std::string_view label; // as in the command table
    Command command;        // or none
    Key_Action action;      // without a command
    std::string_view name;  // empty for that of the command
    Key_Hold hold;
};

namespace key_rows {

using enum Key_Hold;

// clang-format off
constexpr std::array table = std::to_array<Key_Row>({
    {Modifier::control, 'y',               "^y",        Command::redo,                Key_Action::none,          "",                  goes_on},
    {Modifier::control, 'a',               "^a",        Command::none,                Key_Action::select_all,    "Select all",        acts_once},
    {Modifier::control, 'd',               "^d",        Command::deselect,            Key_Action::none,          "",                  acts_once},
    {Modifier::control, 'i',               "^i",        Command::invert_selection,    Key_Action::none,          "",                  acts_once},
    {Modifier::none,    key::delete_key,   "Del",       Command::clear,               Key_Action::none,          "",                  acts_once},
    {Modifier::none,    key::enter,        "Return",    Command::none,                Key_Action::plot_floating, "Plot what floats",  acts_once},
    {Modifier::none,    key::keypad_enter, "Enter",     Command::none,                Key_Action::plot_floating, "Plot what floats",  acts_once},
    {Modifier::control, 'n',               "^n",        Command::new_tileset,         Key_Action::none,          "",                  acts_once},
    {Modifier::control, 'o',               "^o",        Command::load,                Key_Action::none,          "",                  acts_once},
    {Modifier::control, 'w',               "^w",        Command::close,               Key_Action::none,          "",                  acts_once},
    {Modifier::control, 'e',               "^e",        Command::none,                Key_Action::export_again,  "Export again",      acts_once},
    {Modifier::control, key::tab,          "^Tab",      Command::none,                Key_Action::next_set,      "Next open tileset", goes_on},
    {Modifier::none,    key::page_up,      "Page Up",   Command::previous_tile,       Key_Action::none,          "",                  goes_on},
    {Modifier::none,    key::page_down,    "Page Down", Command::next_tile,           Key_Action::none,          "",                  goes_on},
    {Modifier::none,    '[',               "[",         Command::none,                Key_Action::smaller_brush, "Smaller brush",     goes_on},
    {Modifier::none,    ']',               "]",         Command::none,                Key_Action::larger_brush,  "Larger brush",      goes_on},
    {Modifier::none,    '+',               "+",         Command::zoom_tile_up,        Key_Action::none,          "",                  goes_on},
    {Modifier::none,    '=',               "=",         Command::zoom_tile_up,        Key_Action::none,          "",                  goes_on},
    {Modifier::none,    '-',               "-",         Command::zoom_tile_down,      Key_Action::none,          "",                  goes_on},
    {Modifier::none,    '*',               "*",         Command::center_tile_on_view, Key_Action::none,          "",                  acts_once},
    {Modifier::none,    '0',               "0",         Command::center_tile_on_view, Key_Action::none,          "",                  acts_once},
    {Modifier::none,    key::keypad_0,     "Keypad 0",  Command::center_tile_on_view, Key_Action::none,          "",                  acts_once},
    {Modifier::none,    'g',               "g",         Command::none,                Key_Action::toggle_grid,   "Grid on and off",   acts_once},
    {Modifier::shift,   'g',               "G",         Command::none,                Key_Action::toggle_surroundings, "Neighbours in the map", acts_once},
    {Modifier::none,    'e',               "e",         Command::none,                Key_Action::eraser,        "Eraser",            acts_once},
    {Modifier::none,    'n',               "n",         Command::line,                Key_Action::none,          "",                  acts_once},
    {Modifier::none,    'u',               "u",         Command::rectangle,           Key_Action::none,          "",                  acts_once},
    {Modifier::shift,   'u',               "U",         Command::circle,              Key_Action::none,          "",                  acts_once},
    {Modifier::none,    's',               "s",         Command::rectangle_selector,  Key_Action::none,          "",                  acts_once},
    {Modifier::shift,   's',               "S",         Command::circle_selector,     Key_Action::none,          "",                  acts_once},
    {Modifier::none,    'q',               "q",         Command::brush_selector,      Key_Action::none,          "",                  acts_once},
    {Modifier::none,    'w',               "w",         Command::wand_selector,       Key_Action::none,          "",                  acts_once},
    {Modifier::shift,   'p',               "P",         Command::colorize_pen,        Key_Action::none,          "",                  acts_once},
    {Modifier::shift,   'b',               "B",         Command::smudge_brush,        Key_Action::none,          "",                  acts_once},
});
// clang-format on

constexpr bool is_complete(const Key_Row& row) {
    const bool has_command = row.command != Command::none;
    const bool has_action = row.action != Key_Action::none;
    return row.key != key::none && !row.label.empty() && has_command != has_action &&
           (has_command || !row.name.empty());
}

constexpr bool has_chord_of_its_own(const Key_Row& row) {
    const auto has_same = [&row](const auto& other) {
        return other.key == row.key && other.modifier == row.modifier;
    };
    return std::ranges::none_of(command_table, has_same) && std::ranges::count_if(table, has_same) == 1;
}

static_assert(std::ranges::all_of(table, is_complete));
static_assert(std::ranges::all_of(table, has_chord_of_its_own));

// An arrow moves what floats by so many pixels. Where nothing does, it is the key of a command.
struct Nudge_Row {
    Modifier modifier;
    Keycode key;
    Tile_Point step;
};

constexpr std::array nudges = std::to_array<Nudge_Row>({
    {Modifier::none, key::left, {-1, 0}},
    {Modifier::none, key::right, {1, 0}},
    {Modifier::none, key::up, {0, -1}},
    {Modifier::none, key::down, {0, 1}},
    {Modifier::shift, key::left, {-8, 0}},
    {Modifier::shift, key::right, {8, 0}},
    {Modifier::shift, key::up, {0, -8}},
    {Modifier::shift, key::down, {0, 8}},
});

// Of the commands it may take the keys of those alone that move the tile in the same way.
constexpr bool takes_no_other_key(const Nudge_Row& row) {
    const auto has_same = [&row](const auto& other) {
        return other.key == row.key && other.modifier == row.modifier;
    };
    const auto is_in_the_way = [&has_same](const Command_Row& other) {
        return has_same(other) && (other.id < Command::scroll_left || other.id > Command::scroll_down);
    };
    return std::ranges::none_of(command_table, is_in_the_way) && std::ranges::none_of(table, has_same) &&
           std::ranges::count_if(nudges, has_same) == 1;
}

static_assert(std::ranges::all_of(nudges, takes_no_other_key));

} // namespace key_rows

inline constexpr const auto& key_table = key_rows::table;
inline constexpr const auto& nudge_table = key_rows::nudges;

[[nodiscard]] constexpr std::string_view name_of(const Key_Row& row) {
    return row.name.empty() ? row_of(row.command).name : row.name;
}

// Returns the row with exactly this key and modifier; null without one.
[[nodiscard]] constexpr const Key_Row* find_key(Key_Chord chord) {
    const auto* const row = std::ranges::find_if(key_table, [chord](const Key_Row& candidate) {
        return Key_Chord{candidate.key, candidate.modifier} == chord;
    });
    return row == key_table.end() ? nullptr : row;
}

} // namespace quadrelle
