#pragma once

// The fixed table of commands: names, keys, and how each one is recorded.

#include "base/input.h"
#include "base/table.h"
#include "commands/command.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
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

// What is special about a command; joined by `|`.
enum class Command_Trait : std::uint32_t {
    plain = 0,
    brush = 1,                 // selects a tool that paints through the brush
    tileset_level = 1 << 1,    // acts on the set as a whole: a seam offset is undone first
    needs_tile = 1 << 2,       // would do nothing at all in a set without a tile
    leaves_selection = 1 << 3, // the user may want nothing to be selected afterwards
    step = 1 << 4,             // becomes a step that can be undone; strokes of the tools do so where they end
    repeats = 1 << 5,          // is carried out again and again while its key is held
};

[[nodiscard]] constexpr Command_Trait operator|(Command_Trait first, Command_Trait second) {
    return static_cast<Command_Trait>(static_cast<std::uint32_t>(first) | static_cast<std::uint32_t>(second));
}

struct Command_Row {
    Command id;
    std::string_view name;
    Command inverse; // the command that undoes this one, or none
    Modifier modifier;
    Keycode key;
    std::string_view key_label; // "^" stands for Ctrl, "~" for Alt, a capital letter for Shift
    Command_Category category;
    Command_Trait traits;

    [[nodiscard]] constexpr bool has(Command_Trait trait) const { return (traits | trait) == traits; }
};

constexpr std::size_t command_count = 94;

namespace command_rows {

using enum Command_Category;
using enum Command_Trait;

// clang-format off
constexpr std::array<Command_Row, command_count> table{{
    {Command::pen,                   "Pen",                   Command::none,           Modifier::none,     'p',                    "p",      pixels,       brush},
    {Command::dropper,               "Dropper",               Command::none,           Modifier::none,     'd',                    "d",      unrecorded,   plain},
    {Command::lightness_pen,         "Lightness pen",         Command::none,           Modifier::shift,    'l',                    "L",      pixels,       brush},
    {Command::colorize_pen,          "Colorize pen",          Command::none,           Modifier::none,     key::none,              " ",      pixels,       brush},
    {Command::flood_fill,            "Flood fill",            Command::none,           Modifier::none,     'f',                    "f",      pixels,       plain},
    {Command::line,                  "Line",                  Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::rectangle,             "Rectangle",             Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::circle,                "Circle",                Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::stamp_brush,           "Stamp brush",           Command::none,           Modifier::none,     'b',                    "b",      pixels,       brush},
    {Command::smudge_brush,          "Smudge brush",          Command::none,           Modifier::none,     key::none,              " ",      pixels,       brush},
    {Command::save_history_buffer,   "Save history buffer",   Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   needs_tile},
    {Command::swap_tool_colors,      "Swap tool colors",      Command::none,           Modifier::none,     'x',                    "x",      unrecorded,   plain},
    {Command::select_brush_size_1,   "Select brush size 1",   Command::none,           Modifier::none,     '1',                    "1",      unrecorded,   plain},
    {Command::select_brush_size_2,   "Select brush size 2",   Command::none,           Modifier::none,     '2',                    "2",      unrecorded,   plain},
    {Command::select_brush_size_3,   "Select brush size 3",   Command::none,           Modifier::none,     '3',                    "3",      unrecorded,   plain},
    {Command::select_brush_size_4,   "Select brush size 4",   Command::none,           Modifier::none,     '4',                    "4",      unrecorded,   plain},
    {Command::select_brush_size_5,   "Select brush size 5",   Command::none,           Modifier::none,     '5',                    "5",      unrecorded,   plain},
    {Command::select_brush_size_6,   "Select brush size 6",   Command::none,           Modifier::none,     '6',                    "6",      unrecorded,   plain},
    {Command::color_left,            "Color left",            Command::none,           Modifier::none,     'h',                    "h",      unrecorded, repeats},
    {Command::color_right,           "Color right",           Command::none,           Modifier::none,     'l',                    "l",      unrecorded, repeats},
    {Command::color_down,            "Color down",            Command::none,           Modifier::none,     'j',                    "j",      unrecorded, repeats},
    {Command::color_up,              "Color up",              Command::none,           Modifier::none,     'k',                    "k",      unrecorded, repeats},
    {Command::rectangle_selector,    "Rectangle selector",    Command::none,           Modifier::none,     key::none,              " ",      selection,    plain},
    {Command::circle_selector,       "Circle selector",       Command::none,           Modifier::none,     key::none,              " ",      selection,    plain},
    {Command::brush_selector,        "Brush selector",        Command::none,           Modifier::none,     key::none,              " ",      selection,    brush},
    {Command::wand_selector,         "Wand selector",         Command::none,           Modifier::none,     key::none,              " ",      selection,    plain},
    {Command::deselect,              "Deselect",              Command::none,           Modifier::none,     key::space,             "Space",  selection,    step},
    {Command::invert_selection,      "Invert selection",      Command::none,           Modifier::none,     key::none,              " ",      selection,    step},
    {Command::fill,                  "Fill",                  Command::none,           Modifier::none,     key::none,              " ",      selection,    step},
    {Command::clear,                 "Clear",                 Command::none,           Modifier::none,     key::none,              " ",      selection,    step},
    {Command::work_selection,        "Work selection",        Command::none,           Modifier::none,     key::none,              " ",      selection,    plain},
    {Command::scroll_left,           "Scroll left",           Command::scroll_right,   Modifier::none,     key::left,              "Left",   pixels, needs_tile | step | repeats},
    {Command::scroll_right,          "Scroll right",          Command::scroll_left,    Modifier::none,     key::right,             "Right",  pixels, needs_tile | step | repeats},
    {Command::scroll_up,             "Scroll up",             Command::scroll_down,    Modifier::none,     key::up,                "Up",     pixels, needs_tile | step | repeats},
    {Command::scroll_down,           "Scroll down",           Command::scroll_up,      Modifier::none,     key::down,              "Down",   pixels, needs_tile | step | repeats},
    {Command::rotate,                "Rotate",                Command::rotate_back,    Modifier::none,     'r',                    "r",      pixels,       needs_tile | step},
    {Command::rotate_back,           "Rotate back",           Command::rotate,         Modifier::shift,    'r',                    "R",      pixels,       needs_tile | step},
    {Command::mirror,                "Mirror",                Command::mirror,         Modifier::none,     key::none,              " ",      pixels,       needs_tile | step},
    {Command::flip,                  "Flip",                  Command::flip,           Modifier::none,     key::none,              " ",      pixels,       needs_tile | step},
    {Command::horizontal_seam_tool,  "Horizontal seam tool",  Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   needs_tile},
    {Command::vertical_seam_tool,    "Vertical seam tool",    Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   needs_tile},
    {Command::scroll,                "Scroll",                Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::free_rotate,           "Free rotate",           Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::next_tile,             "Next tile",             Command::change_tile,    Modifier::none,     key::none,              " ",      tile_switch,  tileset_level | leaves_selection | step},
    {Command::previous_tile,         "Previous tile",         Command::change_tile,    Modifier::none,     key::none,              " ",      tile_switch,  tileset_level | leaves_selection | step},
    {Command::next_tile_strip,       "Next tile strip",       Command::none,           Modifier::shift,    '\\',                   ">",      unrecorded, repeats},
    {Command::previous_tile_strip,   "Previous tile strip",   Command::none,           Modifier::none,     '\\',                   "<",      unrecorded, repeats},
    {Command::change_tile,           "Change tile",           Command::change_tile,    Modifier::none,     key::none,              " ",      tile_switch,  tileset_level | leaves_selection | step},
    {Command::rewind_strip,          "Rewind strip",          Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::forward_strip,         "Forward strip",         Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::copy,                  "Copy",                  Command::none,           Modifier::control,  'c',                    "^c",     unrecorded,   plain},
    {Command::use_as_brush,          "Use as brush",          Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::cut,                   "Cut",                   Command::none,           Modifier::control,  'x',                    "^x",     pixels,       step},
    {Command::paste,                 "Paste",                 Command::none,           Modifier::control,  'v',                    "^v",     pixels,       step},
    {Command::clone,                 "Clone",                 Command::skip_command,   Modifier::none,     key::none,              " ",      pixels,       step},
    {Command::delete_brush,          "Delete brush",          Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::move_to_pad,           "Move to pad",           Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::close,                 "Close",                 Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::new_tileset,           "New",                   Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::load,                  "Load",                  Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::import_from_bmp,       "Import from BMP",       Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::export_bitmap,         "Export",                Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::save_as,               "Save as...",            Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::save,                  "Save",                  Command::none,           Modifier::control,  's',                    "^s",     unrecorded,   plain},
    {Command::quit,                  "Quit",                  Command::none,           Modifier::none,     key::escape,            "Esc",    unrecorded,   plain},
    {Command::view_in_real_size,     "View in real size",     Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::arrange_select,        "Arrange/Select",        Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::add_new_tile,          "Add new tile",          Command::none,           Modifier::none,     key::none,              " ",      structure,    tileset_level | leaves_selection},
    {Command::insert_new_tile,       "Insert new tile",       Command::none,           Modifier::none,     key::none,              " ",      structure,    tileset_level},
    {Command::delete_tile,           "Delete tile",           Command::none,           Modifier::none,     key::none,              " ",      structure,    tileset_level | needs_tile | leaves_selection},
    {Command::statistics,            "Statistics",            Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::view_tile_array,       "View tile array",       Command::none,           Modifier::none,     key::tab,               "Tab",    unrecorded,   plain},
    {Command::anti_alias,            "Anti-alias ",           Command::none,           Modifier::none,     key::none,              " ",      pixels,       needs_tile | step},
    {Command::center_tile_on_view,   "Center tile on view",   Command::none,           Modifier::none,     key::keypad_multiply,   "*",      unrecorded,   plain},
    {Command::adjust_hsv,            "Adjust HSV",            Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::zoom_tile_up,          "Zoom tile up",          Command::none,           Modifier::none,     key::keypad_plus,       "+",      unrecorded, repeats},
    {Command::zoom_tile_down,        "Zoom tile down",        Command::none,           Modifier::none,     key::keypad_minus,      "-",      unrecorded, repeats},
    {Command::color_editor,          "Color editor",          Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::map_editor,            "Map editor",            Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   tileset_level},
    {Command::versions,              "Versions",              Command::none,           Modifier::none,     'v',                    "v",      unrecorded,   tileset_level | needs_tile},
    {Command::options,               "Options",               Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::context_info,          "Context info",          Command::none,           Modifier::none,     key::f1,                "F1",     unrecorded,   plain},
    {Command::about,                 "About",                 Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::keyboard_commands,     "Keyboard commands",     Command::none,           Modifier::shift,    'k',                    "K",      unrecorded,   plain},
    {Command::mouse_commands,        "Mouse commands",        Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::view_undo_history,     "View undo history",     Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::debug_monitor,         "Debug monitor",         Command::none,           Modifier::none,     'm',                    "m",      unrecorded,   plain},
    {Command::plot_paste,            "Plot paste",            Command::none,           Modifier::none,     key::none,              " ",      pixels,       step},
    {Command::undo,                  "Undo",                  Command::none,           Modifier::control,  'z',                    "^z",     unrecorded, repeats},
    {Command::redo,                  "Redo",                  Command::none,           Modifier::control,  'r',                    "^r",     unrecorded, repeats},
    {Command::filled_rectangle,      "Filled rectangle",      Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::filled_circle,         "Filled circle",         Command::none,           Modifier::none,     key::none,              " ",      pixels,       plain},
    {Command::skip_command,          "Skip command",          Command::none,           Modifier::none,     key::none,              " ",      unrecorded,   plain},
    {Command::test,                  "Test",                  Command::none,           Modifier::alt,      't',                    "~t",     unrecorded,   plain},
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

// What is undone by another command is a step, and so is what that one does.
constexpr bool has_right_inverse(const Command_Row& row) {
    if (row.inverse == Command::none) {
        return true;
    }
    const Command_Row& inverse = table[static_cast<std::size_t>(row.inverse)];
    const bool is_mutual = inverse.inverse == row.id;
    return row.has(step) &&
           (is_mutual || row.category == tile_switch || row.inverse == Command::skip_command);
}

constexpr bool has_right_traits(const Command_Row& row) {
    const bool changes_set = row.category == structure || row.category == tile_switch;
    const bool can_be_step = row.category != unrecorded && row.category != structure;
    return (row.has(tileset_level) || !changes_set) && (changes_set || !row.has(leaves_selection)) &&
           (can_be_step || !row.has(step));
}

static_assert(command_count == static_cast<std::size_t>(Command::count));
static_assert(rows_follow_their_ids(table));
static_assert(have_distinct_chords());
static_assert(std::ranges::all_of(table, has_right_inverse));
static_assert(std::ranges::all_of(table, has_right_traits));
static_assert(std::ranges::all_of(table, [](const Command_Row& row) {
    return (row.key == key::none) == (row.key_label == " ");
}));

} // namespace command_rows

inline constexpr const std::array<Command_Row, command_count>& command_table = command_rows::table;

// Not for `Command::none`.
[[nodiscard]] constexpr const Command_Row& row_of(Command command) {
    return command_table.at(static_cast<std::size_t>(command));
}

// The first command with exactly this key and modifier, or none.
[[nodiscard]] Command find_command(Key_Chord chord);
// The name, followed by the key label in parentheses when there is a key.
[[nodiscard]] std::string menu_text(Command command);
[[nodiscard]] std::optional<std::string_view> help_text(Command command);
// The help text; "dsc" where a command has none.
[[nodiscard]] std::string_view description(Command command);

} // namespace quadrelle
