#pragma once

// The dialog that offers the options, and the table of what it offers. Keeps them in "options.dlg" in the
// data directory.

#include "base/table.h"
#include "tools/options.h"
#include "ui/dialog_container.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace quadrelle {

enum class Option_Kind { choice, tick, number };

struct Option_Row {
    Option id;
    std::string_view key;
    int row_id; // of a tick; a choice or number has the next one
    Option_Kind kind;
    std::string_view text;
    int initial;
    int low;
    int high;
    int offset; // from what the dialog shows to the value
};

// clang-format off
constexpr std::array<Option_Row, option_count> option_table{{
    {Option::precise_brush,        "precise brush: ",        30,  Option_Kind::choice, "No precise brush,Use precise brush,Exclude pixel size precise brush$", 2, 0, 2, 0},
    {Option::blocky_precise_brush, "blocky precise brush: ", 40,  Option_Kind::tick,   "Use blocky precise brush movement", 0, 0, 1, 0},
    {Option::show_shadow_brush,    "show shadow brush: ",    50,  Option_Kind::tick,   "Show shadow brush", 1, 0, 1, 0},
    {Option::hide_or_show_cursor,  "hide or show cursor: ",  170, Option_Kind::tick,   "Cursor: Hide if precise or shadow brush active", 0, 0, 1, 0},
    {Option::confirm_quick_save,   "confirm quick save: ",   70,  Option_Kind::tick,   "Confirm quick save", 0, 0, 1, 0},
    {Option::editor_pixel_size,    "editor pixel size: ",    80,  Option_Kind::choice,
        "Editor pixel size: 3 [restart],Editor pixel size: 4 [restart],Editor pixel size: 5 [restart],"
        "Editor pixel size: 6 [restart],Editor pixel size: 7 [restart],Editor pixel size: 8 [restart],"
        "Editor pixel size: 9 [restart],Editor pixel size: 10 [restart]$", 7, 0, 7, 3},
    {Option::grid_intensity,       "grid intensity: ",       90,  Option_Kind::number, "Grid intensity:", 64, 0, 255, 0},
    {Option::clear_selection,      "clear selection: ",      100, Option_Kind::tick,   "Clear selection when another tile selected", 1, 0, 1, 0},
    {Option::repeat_x_tiles,       "repeat x tiles: ",       110, Option_Kind::number, "Preview X tiles:", 2, 1, 21, 0},
    {Option::repeat_y_tiles,       "repeat y tiles: ",       120, Option_Kind::number, "Preview Y tiles:", 2, 1, 21, 0},
    {Option::alpha_grid_width,     "alpha grid width: ",     150, Option_Kind::number, "Alpha grid width:", 6, 1, 8, 0},
    {Option::alpha_grid_height,    "alpha grid height: ",    160, Option_Kind::number, "Alpha grid height:", 6, 1, 8, 0},
    {Option::clone_style,          "clone style: ",          130, Option_Kind::choice,
        "Clone: Use original location,Clone: Center to image,Clone: Anchor to top-left,"
        "Clone: Resize to current size$", 0, 0, 3, 0},
}};
// clang-format on

static_assert(option_table.size() == static_cast<std::size_t>(Option::count));
static_assert(rows_follow_their_ids(option_table));
static_assert(std::ranges::all_of(option_table, [](const Option_Row& row) {
    return row.initial >= row.low && row.initial <= row.high;
}));

class Options_Dialog : public Option_Source {
public:
    // Shows what the file says, and the table's values where it says nothing.
    Options_Dialog();

    [[nodiscard]] int shown(Option option) const override;
    bool run() override { return dialog_.run(); }

    // Returns the item that an option is changed with.
    [[nodiscard]] Dialog_Item& control(Option option);
    [[nodiscard]] Dialog_Container& container() { return dialog_; }

private:
    Dialog_Container dialog_;
};

} // namespace quadrelle
