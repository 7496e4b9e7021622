#pragma once

// What the map editor can do at the press of a button or a key, and the row of its buttons.

#include "base/geometry.h"
#include "base/input.h"
#include "base/table.h"
#include "commands/key_table.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quadrelle {

enum class Map_Action : std::int32_t {
    pen,
    rectangle,
    fill,
    erase,
    random,
    mirror,
    flip,
    turn_right,
    turn_left,
    undo,
    redo,
    grid,
    uses,
    zoom_out,
    zoom_in,
    centre,
    size,
    remove,
    import_map,
    export_map,
    save,
    close,
    count
};

struct Map_Action_Row {
    Map_Action id;
    std::string_view label;
    std::string_view key; // as in the command table
    std::string_view text;
    // Has the same keys as the editor: those of a command or of what is no command.
    Command command = Command::none;
    Key_Action action = Key_Action::none;
    Key_Chord further = {}; // a key of its own
    bool repeats = false;   // while the key is held
};

// clang-format off
constexpr std::array<Map_Action_Row, static_cast<std::size_t>(Map_Action::count)> map_action_table{{
    {Map_Action::pen,        "Pen",    "p",   "Places what is chosen; a drag draws a line of it. With Shift a drag fills a rectangle.", Command::pen},
    {Map_Action::rectangle,  "Rect",   "u",   "A drag fills a rectangle with what is chosen.", Command::rectangle},
    {Map_Action::fill,       "Fill",   "f",   "A click fills all cells that are joined and have the same in them.", Command::flood_fill},
    {Map_Action::erase,      "Erase",  "e",   "Pen, rectangle and fill make places empty instead, until it is chosen again.", Command::none, Key_Action::eraser},
    {Map_Action::random,     "Random", "a",   "Each place gets one of the chosen tiles. In the list Ctrl and a click add a tile, and a right click lets it come more often.", Command::none, Key_Action::none, {'a', Modifier::none}},
    {Map_Action::mirror,     "Mirror", "x",   "What is chosen is placed mirrored, left to right.", Command::mirror, Key_Action::none, {'x', Modifier::none}},
    {Map_Action::flip,       "Flip",   "y",   "What is chosen is placed upside down.", Command::flip, Key_Action::none, {'y', Modifier::none}},
    {Map_Action::turn_right, "Turn",   "r",   "Turns what is chosen by a quarter.", Command::rotate},
    {Map_Action::turn_left,  "Back",   "R",   "Turns what is chosen back by a quarter.", Command::rotate_back},
    {Map_Action::undo,       "Undo",   "^z",  "Takes back the last press, drag, fill or change of the size.", Command::undo, Key_Action::none, {}, true},
    {Map_Action::redo,       "Redo",   "^r",  "Does again what was taken back.", Command::redo, Key_Action::none, {}, true},
    {Map_Action::grid,       "Grid",   "g",   "Shows lines between the places, or hides them.", Command::none, Key_Action::toggle_grid},
    {Map_Action::uses,       "Uses",   "n",   "Shows in the list how often the map has each tile, or hides it.", Command::none, Key_Action::none, {'n', Modifier::none}},
    {Map_Action::zoom_out,   "-",      "-",   "Shows more of the map. The wheel does that about the pointer.", Command::zoom_tile_down, Key_Action::none, {}, true},
    {Map_Action::zoom_in,    "+",      "+",   "Shows the tiles larger. The wheel does that about the pointer.", Command::zoom_tile_up, Key_Action::none, {}, true},
    {Map_Action::centre,     "Centre", "*",   "Brings the middle of the map into the middle of the view.", Command::center_tile_on_view},
    {Map_Action::size,       "Size",   "s", "Adds columns and rows at any side of the map, or takes them away.", Command::none, Key_Action::none, {'s', Modifier::none}},
    {Map_Action::remove,     "Remove", "",    "Takes the map away from the tileset; it asks first. Its file goes when the tileset is saved."},
    {Map_Action::import_map, "Import", "^o",  "Reads a TMX map of one layer that was laid out with these tiles.", Command::load},
    {Map_Action::export_map, "Export", "^e", "Writes a picture of the map (.png, .bmp), or a TMX map with a picture of its tiles (.tmx).", Command::none, Key_Action::none, {'e', Modifier::control}},
    {Map_Action::save,       "Save",   "^s",  "Saves the tileset, with the map beside it.", Command::save},
    {Map_Action::close,      "Close",  "Tab", "Goes back to the tile. The map stays with the tileset.", Command::none, Key_Action::none, {key::tab, Modifier::none}},
}};
// clang-format on

static_assert(rows_follow_their_ids(map_action_table));

[[nodiscard]] constexpr const Map_Action_Row& row_of(Map_Action action) {
    return map_action_table.at(static_cast<std::size_t>(action));
}

// Returns what the key stands for; nothing for one that is only held down and does not repeat.
[[nodiscard]] std::optional<Map_Action> action_of_key(const Input_Event& press);

// Which of the buttons look pressed, and which would do nothing.
enum class Map_Button_State { plain, chosen, useless };

class Map_Buttons {
public:
    // The screen must be there.
    Map_Buttons();

    void draw(const std::function<Map_Button_State(Map_Action)>& state_of) const;
    [[nodiscard]] std::optional<Map_Action> at(Point point) const;
    [[nodiscard]] const Rectangle& area_of(Map_Action action) const {
        return areas_.at(static_cast<std::size_t>(action));
    }

private:
    std::array<Rectangle, map_action_table.size()> areas_;
};

} // namespace quadrelle
