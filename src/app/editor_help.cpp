// What the editor says about itself and about what is under the pointer.

#include "app/editor.h"

#include "app/document_export.h"
#include "commands/command_table.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"
#include "ui/dialogs.h"
#include "views/document_statistics.h"
#include "views/help_lists.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quadrelle {

namespace {

std::optional<Place> color_place(Point point) {
    if (!toolbox->shows_colors()) {
        return std::nullopt;
    }
    switch (tool_colors->side_at(point)) {
    case Mouse_Button::left: return Place::left_color;
    case Mouse_Button::right: return Place::right_color;
    case Mouse_Button::none: break;
    }
    const std::array<std::pair<const Pane*, Place>, 3> panes{
        {{&tool_colors->selector(), Place::hsv_selector},
         {&tool_colors->handles(), Place::handles},
         {&tool_colors->variations(), Place::variations}}};
    const auto pane =
        std::ranges::find_if(panes, [point](const auto& row) { return row.first->area.contains(point); });
    const bool is_there = pane != panes.end() && toolbox->current_tool() != Tool::dropper;
    return is_there ? std::optional(pane->second) : std::nullopt;
}

} // namespace

std::optional<Place> Editor::pointed_place() {
    const Point point = pointer_.point();
    const std::array<std::pair<const Pane*, Place>, 6> panes{{{&preview_, Place::preview},
                                                              {&magnification_, Place::magnification},
                                                              {&navigation_, Place::navigation},
                                                              {&history_pane_, Place::history},
                                                              {&palette_, Place::palette},
                                                              {&selected_color_, Place::selected_color}}};
    for (const auto& [pane, place] : panes) {
        if (pane->area.contains(point)) {
            return place;
        }
    }
    if (documents_.has_tab_at(point)) {
        return Place::tabs;
    }
    if (Tile_Strip::area.contains(point)) {
        return Place::strip;
    }
    if (toolbox->is_in_selection_group() && copy_panes_.current().area.contains(point)) {
        return Place::copy_buffer;
    }
    if (toolbox->is_in_selection_group() && copy_panes_.previous().area.contains(point)) {
        return Place::previous_copies;
    }
    return toolbox->has_brush_pad_at(point) ? Place::brush_pad : color_place(point);
}

Pointed Editor::pointed() {
    const Point point = pointer_.point();
    // An open menu covers what else is there.
    if (menu_bar_->contains(point)) {
        const Command row = menu_bar_->command_at(point);
        return row == Command::none ? Pointed(Place::menus) : Pointed(row);
    }
    if (canvas_viewport.contains(point)) {
        if (canvas_.tile() == nullptr) {
            return Place::canvas_without_tile;
        }
        const Tile_Point pixel = canvas_.tile_point(point);
        if (!canvas_.tile()->is_outside(pixel.x, pixel.y)) {
            return Pointed_Pixel{pixel, canvas_.tile()->get_pixel(pixel.x, pixel.y)};
        }
    }
    const Command button = toolbox->is_in_selection_group() ? copy_panes_.command_at(point) : Command::none;
    for (const Command command :
         {icon_bar_.command_at(point), toolbox->command_at(point), button, navigation_.command_at(point)}) {
        if (command != Command::none) {
            return command;
        }
    }
    if (const std::optional<Place> place = pointed_place()) {
        return *place;
    }
    return toolbox->current_command();
}

// Over the tile, of the tool that would be used on it.
Command Editor::show_help(Command command) {
    const Pointed thing = pointed();
    const auto* const place = std::get_if<Place>(&thing);
    const auto* const other = std::get_if<Command>(&thing);
    const Hint help =
        place != nullptr ? help_of(*place) : help_of(other != nullptr ? *other : toolbox->current_command());
    dialogs->message(help.title, help.text);
    return command;
}

Command Editor::show_keyboard_commands(Command command) {
    make_keyboard_dialog().run();
    return command;
}

Command Editor::show_mouse_commands(Command command) {
    make_mouse_dialog().run();
    return command;
}

Command Editor::show_statistics(Command command) {
    dialogs->message("Statistics", statistics_text(documents_.current()));
    return command;
}

Command Editor::export_picture(Command command) {
    return export_bitmap(documents_.current()) ? command : Command::skip_command;
}

} // namespace quadrelle
