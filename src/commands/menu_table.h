#pragma once

// The six menus: which commands stand in them, in which order.

#include "commands/command.h"

#include <array>
#include <span>
#include <string_view>

namespace quadrelle {

// A row with a command shows the command's own text; what it is called here only tells the reader.
struct Menu_Row {
    std::string_view text;
    Command command = Command::none;
};

constexpr Menu_Row menu_separator{" --- ", Command::none};

namespace menus {

constexpr std::array file = std::to_array<Menu_Row>({
    {" New ", Command::new_tileset},
    menu_separator,
    {" Load ", Command::load},
    menu_separator,
    {" Save ", Command::save},
    {" Save as...", Command::save_as},
    {" Export as .bmp", Command::export_bitmap},
    menu_separator,
    {" Close ", Command::close},
    menu_separator,
    {" Options ", Command::options},
    menu_separator,
    {" Exit ", Command::quit},
});

constexpr std::array edit = std::to_array<Menu_Row>({
    {" Undo ", Command::undo},
    {" Redo ", Command::redo},
    menu_separator,
    {" Copy ", Command::copy},
    {" Cut ", Command::cut},
    menu_separator,
    {" Paste ", Command::paste},
    {" Clone ", Command::clone},
    menu_separator,
    {" ", Command::use_as_brush},
    {" ", Command::move_to_pad},
    {" ", Command::delete_brush},
    menu_separator,
    {" Deselect ", Command::deselect},
    {" Invert selection ", Command::invert_selection},
    menu_separator,
    {" Dumb fill ", Command::fill},
    {" Clear ", Command::clear},
});

constexpr std::array tile = std::to_array<Menu_Row>({
    {" Anti-alias ", Command::anti_alias},
    menu_separator,
    {" Flip ", Command::flip},
    {" Mirror ", Command::mirror},
    {" Rotate 90 CW ", Command::rotate},
    {" Rotate 90 CCW ", Command::rotate_back},
    {" ", Command::save_history_buffer},
});

constexpr std::array tileset = std::to_array<Menu_Row>({
    {" View in real size ", Command::view_in_real_size},
    {" Arrange/Select ", Command::arrange_select},
    menu_separator,
    {" Add new tile ", Command::add_new_tile},
    {" Insert new tile ", Command::insert_new_tile},
    {" Delete tile ", Command::delete_tile},
    menu_separator,
    {" Statistics ", Command::statistics},
});

constexpr std::array tools = std::to_array<Menu_Row>({
    {" Color editor ", Command::color_editor},
    {" Map editor ", Command::map_editor},
    {" Versions ", Command::versions},
    {" View undo history ", Command::view_undo_history},
});

constexpr std::array help = std::to_array<Menu_Row>({
    {" Keyboard shortcuts ", Command::keyboard_commands},
    {" Mouse commands ", Command::mouse_commands},
    {" About ", Command::about},
});

} // namespace menus

struct Menu_Column {
    std::string_view header;
    std::span<const Menu_Row> rows;
};

constexpr std::array<Menu_Column, 6> menu_table{{
    {" File ", menus::file},
    {" Edit ", menus::edit},
    {" Tile ", menus::tile},
    {" Tileset ", menus::tileset},
    {" Tools ", menus::tools},
    {" Help ", menus::help},
}};

static_assert([] {
    for (const Menu_Column& column : menu_table) {
        for (const Menu_Row& row : column.rows) {
            if (row.command == Command::none && row.text != menu_separator.text) {
                return false;
            }
        }
    }
    return true;
}());

} // namespace quadrelle
