#pragma once

// What can lie under the pointer, and what the program says about it.

#include "base/geometry.h"
#include "base/table.h"
#include "color/color.h"
#include "commands/command.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

namespace quadrelle {

// The places, and the one tool, that are no command.
enum class Place : int {
    menus,
    tabs,
    canvas_without_tile,
    scaling_handle,
    turning_handle,
    preview,
    magnification,
    navigation,
    strip,
    history,
    palette,
    palette_menu,
    palette_name,
    transparent,
    selected_color,
    left_color,
    right_color,
    hsv_selector,
    handles,
    variations,
    copy_buffer,
    previous_copies,
    selected_brush,
    brush_pad,
    eraser,
    first_steps,
    count
};

struct Place_Row {
    Place id;
    std::string_view title;
    std::string_view text;
};

// clang-format off
constexpr std::array place_table = {
    Place_Row{Place::menus,               "Menus",              "A click opens a menu, and a click on one of its rows carries it out.\rThe key stands behind the name."},
    Place_Row{Place::tabs,                "Open tilesets",      "A click goes to that set. An asterisk says that there is something to save."},
    Place_Row{Place::canvas_without_tile, "No tile",            "This set has no tile yet: Tileset, Add new tile makes one."},
    Place_Row{Place::scaling_handle,      "What floats: scale",  "A drag makes it 1, 2, 3 and more times as large, always from the pixels as they were taken. Shift: by the same factor both ways."},
    Place_Row{Place::turning_handle,      "What floats: turn",   "A drag turns it, always from the pixels as they were taken. Shift: to multiples of 15 degrees."},
    Place_Row{Place::preview,             "Preview",            "The current tile in real size with what floats over it, repeated as often as the options say."},
    Place_Row{Place::magnification,       "Magnification",      "How large a pixel of the tile is shown. The wheel zooms."},
    Place_Row{Place::navigation,          "Tileset navigation", "Steps to the previous and the next tile, and pages through the tiles along the bottom."},
    Place_Row{Place::strip,               "Tiles of the set",   "A click goes to that tile. Tab shows the whole set."},
    Place_Row{Place::history,             "History",            "The newest steps that can be undone. Tools, View undo history shows all."},
    Place_Row{Place::palette,             "Palette",            "Left or right click: takes the color for that button. Double click: edits it. With Shift, left stores the lit color there and right the other. A drag moves it."},
    Place_Row{Place::palette_menu,        "Palette menu",       "Makes, copies, renames and deletes palettes, takes back what was stored, and all else that can be done with colors."},
    Place_Row{Place::palette_name,        "Palettes",           "A click shows all palettes by name; the arrows step through them. The file of each but the first ones is in data/palettes."},
    Place_Row{Place::transparent,         "Transparent",        "Left or right click: the color of that button becomes fully transparent, so that it erases."},
    Place_Row{Place::selected_color,      "Selected",           "The color of the palette that was chosen last. Double click: edits it. Store puts the lit color there."},
    Place_Row{Place::left_color,          "Left button color",  "What the left button draws in. A click lights it: handles, variations and Store work on it. A double click edits it."},
    Place_Row{Place::right_color,         "Right button color", "What the right button draws in. A click lights it: handles, variations and Store work on it. A double click edits it."},
    Place_Row{Place::hsv_selector,        "HSV Selector",       "Drag in the square: the color of the button that you press. Drag in the bar: the hue of the square."},
    Place_Row{Place::handles,             "Handles",            "Change the lit color: drag a slider, or click on less, middle and more."},
    Place_Row{Place::variations,          "Variations",         "Left or right click: takes the color for that button. The outlined cell is the lit color."},
    Place_Row{Place::copy_buffer,         "Copy buffer",        "What Paste and Clone take."},
    Place_Row{Place::previous_copies,     "Previous copies",    "The last 16 copies, the newest one first. A click makes one what Paste and Clone take, a double click pastes it, a right click removes it."},
    Place_Row{Place::selected_brush,      "Selected",           "The brush that stamps and fills. A key for a size takes the built-in brush instead; a click here brings the stamp back."},
    Place_Row{Place::brush_pad,           "Brush pad",          "A click chooses that brush. Edit, Move to pad keeps the selected one here; Edit, Delete brush takes it away."},
    Place_Row{Place::eraser,              "Eraser (e)",         "The pen paints transparent with either button, until another tool is chosen."},
    Place_Row{Place::first_steps,         "A new set of tiles: what next?", "Draw with the left or the right button. File, New makes tiles of another size; File, Load opens a set. Tileset, Add new tile gives it one more."},
};
// clang-format on

static_assert(place_table.size() == static_cast<std::size_t>(Place::count));
static_assert(rows_follow_their_ids(place_table));

struct Pointed_Pixel {
    Tile_Point position;
    Color color;

    bool operator==(const Pointed_Pixel&) const = default;
};

using Pointed = std::variant<Command, Place, Pointed_Pixel>;

struct Hint {
    std::string title;
    std::string text; // lines may be parted by "\r"

    bool operator==(const Hint&) const = default;
};

// Returns name, key and the first paragraph of the help; of a pixel its place and colour.
[[nodiscard]] Hint hint_of(const Pointed& pointed);
// Returns the whole help.
[[nodiscard]] Hint help_of(Command command);
[[nodiscard]] Hint help_of(Place place);

} // namespace quadrelle
