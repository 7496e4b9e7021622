#pragma once

// The fixed table of commands: names, keys, and how each one is recorded.

#include "base/input.h"
#include "base/table.h"
#include "commands/command.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quadrelle {

enum class Command_Category : std::int32_t {
    unrecorded = 0,
    pixels = 1,      // changes the tile's pixels
    selection = 2,   // changes the selection
    structure = 3,   // adds, inserts or deletes tiles
    tile_switch = 4, // makes another tile the current one
};

struct Command_Row {
    Command id;
    std::string_view name;
    Command inverse; // the command that undoes this one, or none
    Modifier modifier;
    Keycode key;
    std::string_view key_label; // "^" stands for Ctrl, "~" for Alt, a capital letter for Shift
    bool paints_through_brush;
    bool is_tileset_level; // acts on the set as a whole: a seam offset is undone first
    Command_Category category;
};

constexpr std::size_t command_count = 94;

namespace command_rows {

constexpr bool brush = true;
constexpr bool level = true;
constexpr bool _ = false;
using enum Command_Category;

// clang-format off
constexpr std::array<Command_Row, command_count> table{{
    {Command::pen,                  "Pen",                  Command::none,         Modifier::none,    'p',                  "p",     brush, _,     pixels},
    {Command::dropper,              "Dropper",              Command::none,         Modifier::none,    'd',                  "d",     _,     _,     unrecorded},
    {Command::lightness_pen,        "Lightness pen",        Command::none,         Modifier::shift,   'l',                  "L",     brush, _,     pixels},
    {Command::colorize_pen,         "Colorize pen",         Command::none,         Modifier::none,    key::none,            " ",     brush, _,     pixels},
    {Command::flood_fill,           "Flood fill",           Command::none,         Modifier::none,    'f',                  "f",     _,     _,     pixels},
    {Command::line,                 "Line",                 Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::rectangle,            "Rectangle",            Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::circle,               "Circle",               Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::stamp_brush,          "Stamp brush",          Command::none,         Modifier::none,    'b',                  "b",     brush, _,     pixels},
    {Command::smudge_brush,         "Smudge brush",         Command::none,         Modifier::none,    key::none,            " ",     brush, _,     pixels},
    {Command::save_history_buffer,  "Save history buffer",  Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::swap_tool_colors,     "Swap tool colors",     Command::none,         Modifier::none,    'x',                  "x",     _,     _,     unrecorded},
    {Command::select_brush_size_1,  "Select brush size 1",  Command::none,         Modifier::none,    '1',                  "1",     _,     _,     unrecorded},
    {Command::select_brush_size_2,  "Select brush size 2",  Command::none,         Modifier::none,    '2',                  "2",     _,     _,     unrecorded},
    {Command::select_brush_size_3,  "Select brush size 3",  Command::none,         Modifier::none,    '3',                  "3",     _,     _,     unrecorded},
    {Command::select_brush_size_4,  "Select brush size 4",  Command::none,         Modifier::none,    '4',                  "4",     _,     _,     unrecorded},
    {Command::select_brush_size_5,  "Select brush size 5",  Command::none,         Modifier::none,    '5',                  "5",     _,     _,     unrecorded},
    {Command::select_brush_size_6,  "Select brush size 6",  Command::none,         Modifier::none,    '6',                  "6",     _,     _,     unrecorded},
    {Command::color_left,           "Color left",           Command::none,         Modifier::none,    'h',                  "h",     _,     _,     unrecorded},
    {Command::color_right,          "Color right",          Command::none,         Modifier::none,    'l',                  "l",     _,     _,     unrecorded},
    {Command::color_down,           "Color down",           Command::none,         Modifier::none,    'j',                  "j",     _,     _,     unrecorded},
    {Command::color_up,             "Color up",             Command::none,         Modifier::none,    'k',                  "k",     _,     _,     unrecorded},
    {Command::rectangle_selector,   "Rectangle selector",   Command::none,         Modifier::none,    key::none,            " ",     _,     _,     selection},
    {Command::circle_selector,      "Circle selector",      Command::none,         Modifier::none,    key::none,            " ",     _,     _,     selection},
    {Command::brush_selector,       "Brush selector",       Command::none,         Modifier::none,    key::none,            " ",     brush, _,     selection},
    {Command::wand_selector,        "Wand selector",        Command::none,         Modifier::none,    key::none,            " ",     _,     _,     selection},
    {Command::deselect,             "Deselect",             Command::none,         Modifier::none,    key::space,           "Space", _,     _,     selection},
    {Command::invert_selection,     "Invert selection",     Command::none,         Modifier::none,    key::none,            " ",     _,     _,     selection},
    {Command::fill,                 "Fill",                 Command::none,         Modifier::none,    key::none,            " ",     _,     _,     selection},
    {Command::clear,                "Clear",                Command::none,         Modifier::none,    key::none,            " ",     _,     _,     selection},
    {Command::work_selection,       "Work selection",       Command::none,         Modifier::none,    key::none,            " ",     _,     _,     selection},
    {Command::scroll_left,          "Scroll left",          Command::scroll_right, Modifier::none,    key::left,            "Left",  _,     _,     pixels},
    {Command::scroll_right,         "Scroll right",         Command::scroll_left,  Modifier::none,    key::right,           "Right", _,     _,     pixels},
    {Command::scroll_up,            "Scroll up",            Command::scroll_down,  Modifier::none,    key::up,              "Up",    _,     _,     pixels},
    {Command::scroll_down,          "Scroll down",          Command::scroll_up,    Modifier::none,    key::down,            "Down",  _,     _,     pixels},
    {Command::rotate,               "Rotate",               Command::rotate_back,  Modifier::none,    'r',                  "r",     _,     _,     pixels},
    {Command::rotate_back,          "Rotate back",          Command::rotate,       Modifier::shift,   'r',                  "R",     _,     _,     pixels},
    {Command::mirror,               "Mirror",               Command::mirror,       Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::flip,                 "Flip",                 Command::flip,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::horizontal_seam_tool, "Horizontal seam tool", Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::vertical_seam_tool,   "Vertical seam tool",   Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::scroll,               "Scroll",               Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::free_rotate,          "Free rotate",          Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::next_tile,            "Next tile",            Command::change_tile,  Modifier::none,    key::none,            " ",     _,     level, tile_switch},
    {Command::previous_tile,        "Previous tile",        Command::change_tile,  Modifier::none,    key::none,            " ",     _,     level, tile_switch},
    {Command::next_tile_strip,      "Next tile strip",      Command::none,         Modifier::shift,   '\\',                 ">",     _,     _,     unrecorded},
    {Command::previous_tile_strip,  "Previous tile strip",  Command::none,         Modifier::none,    '\\',                 "<",     _,     _,     unrecorded},
    {Command::change_tile,          "Change tile",          Command::change_tile,  Modifier::none,    key::none,            " ",     _,     level, tile_switch},
    {Command::rewind_strip,         "Rewind strip",         Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::forward_strip,        "Forward strip",        Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::copy,                 "Copy",                 Command::none,         Modifier::control, 'c',                  "^c",    _,     _,     unrecorded},
    {Command::use_as_brush,         "Use as brush",         Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::cut,                  "Cut",                  Command::none,         Modifier::control, 'x',                  "^x",    _,     _,     pixels},
    {Command::paste,                "Paste",                Command::none,         Modifier::control, 'v',                  "^v",    _,     _,     pixels},
    {Command::clone,                "Clone",                Command::skip_command, Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::delete_brush,         "Delete brush",         Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::move_to_pad,          "Move to pad",          Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::close,                "Close",                Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::new_tileset,          "New",                  Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::load,                 "Load",                 Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::import_from_bmp,      "Import from BMP",      Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::export_bitmap,               "Export",               Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::save_as,              "Save as...",           Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::save,                 "Save",                 Command::none,         Modifier::control, 's',                  "^s",    _,     _,     unrecorded},
    {Command::quit,                 "Quit",                 Command::none,         Modifier::none,    key::escape,          "Esc",   _,     _,     unrecorded},
    {Command::view_in_real_size,    "View in real size",    Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::arrange_select,       "Arrange/Select",       Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::add_new_tile,         "Add new tile",         Command::none,         Modifier::none,    key::none,            " ",     _,     level, structure},
    {Command::insert_new_tile,      "Insert new tile",      Command::none,         Modifier::none,    key::none,            " ",     _,     level, structure},
    {Command::delete_tile,          "Delete tile",          Command::none,         Modifier::none,    key::none,            " ",     _,     level, structure},
    {Command::statistics,           "Statistics",           Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::view_tile_array,      "View tile array",      Command::none,         Modifier::none,    key::tab,             "Tab",   _,     _,     unrecorded},
    {Command::anti_alias,           "Anti-alias ",          Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::center_tile_on_view,  "Center tile on view",  Command::none,         Modifier::none,    key::keypad_multiply, "*",     _,     _,     unrecorded},
    {Command::adjust_hsv,           "Adjust HSV",           Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::zoom_tile_up,         "Zoom tile up",         Command::none,         Modifier::none,    key::keypad_plus,     "+",     _,     _,     unrecorded},
    {Command::zoom_tile_down,       "Zoom tile down",       Command::none,         Modifier::none,    key::keypad_minus,    "-",     _,     _,     unrecorded},
    {Command::color_editor,         "Color editor",         Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::map_editor,           "Map editor",           Command::none,         Modifier::none,    key::none,            " ",     _,     level, unrecorded},
    {Command::versions,             "Versions",             Command::none,         Modifier::none,    'v',                  "v",     _,     level, unrecorded},
    {Command::options,              "Options",              Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::context_info,         "Context info",         Command::none,         Modifier::none,    key::f1,              "F1",    _,     _,     unrecorded},
    {Command::about,                "About",                Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::keyboard_commands,    "Keyboard commands",    Command::none,         Modifier::shift,   'k',                  "K",     _,     _,     unrecorded},
    {Command::mouse_commands,       "Mouse commands",       Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::view_undo_history,    "View undo history",    Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::debug_monitor,        "Debug monitor",        Command::none,         Modifier::none,    'm',                  "m",     _,     _,     unrecorded},
    {Command::plot_paste,           "Plot paste",           Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::undo,                 "Undo",                 Command::none,         Modifier::control, 'z',                  "^z",    _,     _,     unrecorded},
    {Command::redo,                 "Redo",                 Command::none,         Modifier::control, 'r',                  "^r",    _,     _,     unrecorded},
    {Command::filled_rectangle,     "Filled rectangle",     Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::filled_circle,        "Filled circle",        Command::none,         Modifier::none,    key::none,            " ",     _,     _,     pixels},
    {Command::skip_command,         "Skip command",         Command::none,         Modifier::none,    key::none,            " ",     _,     _,     unrecorded},
    {Command::test,                 "Test",                 Command::none,         Modifier::alt,     't',                  "~t",    _,     _,     unrecorded},
}};
// clang-format on

constexpr bool share_a_chord(const Command_Row& first, const Command_Row& second) {
    return first.key != key::none && first.key == second.key && first.modifier == second.modifier;
}

constexpr bool have_distinct_chords() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (share_a_chord(table[i], table[j])) {
                return false;
            }
        }
    }
    return true;
}

static_assert(command_count == static_cast<std::size_t>(Command::count));
static_assert(rows_follow_their_ids(table));
static_assert(have_distinct_chords());

} // namespace command_rows

inline constexpr const std::array<Command_Row, command_count>& command_table = command_rows::table;

// Not for `Command::none`.
[[nodiscard]] constexpr const Command_Row& row_of(Command command) {
    return command_table.at(static_cast<std::size_t>(command));
}

// The first command with exactly this key and modifier, or none.
[[nodiscard]] Command find_command(Key_Chord chord);
// Whether a finished command becomes a step that can be undone, and marks the tileset changed. Strokes of
// the tools are recorded where they end.
[[nodiscard]] bool is_recorded(Command command);
// The name, followed by the key label in parentheses when there is a key.
[[nodiscard]] std::string menu_text(Command command);
// The help text; "dsc" where a command has none.
[[nodiscard]] std::string_view description(Command command);

} // namespace quadrelle
