#include "app/window_panes.h"

#include "app/documents.h"
#include "canvas/canvas_view.h"
#include "color/hex_color.h"
#include "color/standard_colors.h"
#include "panes/tool_color_panel.h"
#include "panes/toolbox.h"
#include "screen/events.h"
#include "tools/options.h"
#include "ui/window_layout.h"

#include <array>
#include <string>
#include <utility>

namespace quadrelle {

namespace {

// Columns or rows of the preview that fit into its 192 pixels.
int fitting_repeat(int tile_extent, int repeat) {
    if (tile_extent <= 0) {
        return 0;
    }
    return tile_extent * repeat > 191 ? 192 / tile_extent : repeat;
}

// The filled icon of a shape sets its type by its command. The plain one shares its command with the list of
// tools, where the type stays.
void set_outline_type(Command icon) {
    if (icon == Command::rectangle || icon == Command::circle) {
        toolbox->state().shape_type_of(tool_of(icon)) = Shape_Type::outline;
    }
}

} // namespace

Window_Panes::Window_Panes(Canvas_View& canvas, Documents& documents, Copy_Buffer& copies, Redraw redraw)
    : canvas_(canvas), documents_(documents), copies_(copies), redraw_(std::move(redraw)),
      preview_(below_title(window_layout::preview)),
      magnification_(below_title(window_layout::magnification), "Magnification", "x"),
      palette_(corner_of(window_layout::palette), *palette_list, toolbox->state().colors),
      selected_color_(corner_of(window_layout::selected_color), palette_, toolbox->state().colors),
      history_(corner_of(window_layout::history)), navigation_(corner_of(window_layout::navigation)),
      menu_bar_([this] { redraw_(Present::no); },
                [this](Command command) { return can_do(command, subjects()); }) {}

void Window_Panes::size_preview() {
    const Size tile = documents_.current().tileset().tile_size();
    preview_.set_repeat(fitting_repeat(tile.width, options->value(Option::repeat_x_tiles)),
                        fitting_repeat(tile.height, options->value(Option::repeat_y_tiles)));
}

void Window_Panes::draw(const Pointer_State& pointer) {
    menu_bar_.draw(pointer);
    icon_bar_.draw([this](Command icon) { return is_lit(icon); });
    draw_panes();
    documents_.draw_tabs();
    if (const Tile* const tile = canvas_.tile()) {
        Hint_Lines::draw_size(tile->size());
    }
    // What another tool changes comes last, so that the rest is found unchanged.
    toolbox->draw(pointer.point());
    if (toolbox->state().is_in_selection_group()) {
        copy_panes_.place(toolbox->entry_top());
        copy_panes_.draw(copies_, [this](Command command) { return can_do(command, subjects()); });
    }
    const Point point = pointer.point();
    hint_lines_.set_hint(hint_at(point),
                         point == pointer_nowhere.point() ? std::nullopt : std::optional(point));
    hint_lines_.draw();
}

void Window_Panes::draw_panes() {
    const Tileset_Document& document = documents_.current();
    preview_.draw(canvas_.shown_tile(toolbox->state()));
    magnification_.set_value(canvas_.pixel_size());
    magnification_.draw();
    palette_.draw();
    selected_color_.draw();
    history_.draw(document.history());
    navigation_.draw(document.strip());
    strip_picture_.draw(document.strip());
}

// Rectangle and circle have an icon for each of two types.
bool Window_Panes::is_lit(Command icon) const {
    const Command current = toolbox->state().command_in_use();
    const bool is_filled = toolbox->state().shape_type() == Shape_Type::filled;
    switch (icon) {
    case Command::rectangle:
    case Command::circle: return current == icon && !is_filled;
    case Command::filled_rectangle: return current == Command::rectangle && is_filled;
    case Command::filled_circle: return current == Command::circle && is_filled;
    case Command::horizontal_seam_tool: return canvas_.horizontal_seam_shift() >= 0;
    case Command::vertical_seam_tool: return canvas_.vertical_seam_shift() >= 0;
    default: return current == icon;
    }
}

Pointed Window_Panes::pointed(Point point) const {
    return thing_at(point).value_or(tool_in_use());
}

std::optional<Pointed> Window_Panes::thing_at(Point point) const {
    // An open menu covers what else is there.
    if (menu_bar_.contains(point)) {
        const Command row = menu_bar_.command_at(point);
        return row == Command::none ? Pointed(Place::menus) : Pointed(row);
    }
    if (const std::optional<Pointed> on_canvas = pointed_on_canvas(point)) {
        return *on_canvas;
    }
    if (const Command command = command_at(point); command != Command::none) {
        return command;
    }
    if (const std::optional<Place> place = place_at(point)) {
        return *place;
    }
    return std::nullopt;
}

Pointed Window_Panes::tool_in_use() {
    const Command command = toolbox->state().command_in_use();
    return command == Command::pen && toolbox->state().is_erasing ? Pointed(Place::eraser) : Pointed(command);
}

// Of a tab also the whole path, which the tab itself has no room for. Before anything was done, what can be
// done is more than the tool.
Hint Window_Panes::hint_at(Point point) const {
    const bool is_untouched = documents_.is_untouched() && tool_in_use() == Pointed(Command::pen);
    const Pointed at_rest = is_untouched ? Pointed(Place::first_steps) : tool_in_use();
    const Pointed thing = thing_at(point).value_or(at_rest);
    Hint hint = hint_of(thing);
    const Tileset_Document* const document = documents_.document_at(point);
    if (thing == Pointed(Place::tabs) && document->is_named()) {
        hint.text = document->file_name() + "\r" + hint.text;
    }
    hint.text += places_in_map(thing, point);
    return hint;
}

// How often the map has the tile there, or the one that would be deleted.
std::string Window_Panes::places_in_map(const Pointed& thing, Point point) const {
    const Tileset_Document& document = documents_.current();
    const int tile = thing == Pointed(Place::strip)           ? tile_at(document.strip(), point)
                     : thing == Pointed(Command::delete_tile) ? document.tileset().current_index()
                                                              : -1;
    if (tile < 0 || document.map() == nullptr) {
        return "";
    }
    const int uses = document.map()->uses_of(tile);
    return "\rThe map has " +
           std::string(thing == Pointed(Place::strip) ? "tile " + std::to_string(tile) : "it") + " at " +
           std::to_string(uses) + (uses == 1 ? " place." : " places.");
}

std::optional<Pointed> Window_Panes::pointed_on_canvas(Point point) const {
    if (!window_layout::canvas.contains(point)) {
        return std::nullopt;
    }
    if (canvas_.tile() == nullptr) {
        return Place::canvas_without_tile;
    }
    const Paste_Handle handle = canvas_.handle_at(point, toolbox->state());
    if (handle != Paste_Handle::none) {
        return handle == Paste_Handle::turn ? Place::turning_handle : Place::scaling_handle;
    }
    const Tile_Point pixel = canvas_.tile_point(point);
    if (canvas_.tile()->is_outside(pixel.x, pixel.y)) {
        return std::nullopt;
    }
    return Pointed_Pixel{pixel, canvas_.seen_pixel(pixel, toolbox->state())};
}

Command Window_Panes::command_at(Point point) const {
    const Command copying =
        toolbox->state().is_in_selection_group() ? copy_panes_.command_at(point) : Command::none;
    for (const Command command :
         {icon_bar_.command_at(point), toolbox->command_at(point), copying, navigation_.command_at(point),
          selected_color_.adjust_button().contains(point) ? Command::adjust_hsv : Command::none}) {
        if (command != Command::none) {
            return command;
        }
    }
    return Command::none;
}

std::optional<Place> Window_Panes::place_at(Point point) const {
    if (const std::optional<Mouse_Button> button = selected_color_.button_color_at(point)) {
        return button == Mouse_Button::left ? Place::left_color : Place::right_color;
    }
    if (palette_.has_transparent_at(point)) {
        return Place::transparent;
    }
    if (const Pane_Popup popup = popup_at(point); popup != Pane_Popup::none) {
        return popup == Pane_Popup::palette_menu ? Place::palette_menu : Place::palette_name;
    }
    if (const std::optional<Place> place = pane_at(point)) {
        return place;
    }
    if (documents_.document_at(point) != nullptr) {
        return Place::tabs;
    }
    if (window_layout::tile_strip.contains(point)) {
        return Place::strip;
    }
    return toolbox->place_at(point);
}

std::optional<Place> Window_Panes::pane_at(Point point) const {
    const std::array<std::pair<const Pane*, Place>, 6> panes{{{&preview_, Place::preview},
                                                              {&magnification_, Place::magnification},
                                                              {&navigation_, Place::navigation},
                                                              {&history_, Place::history},
                                                              {&palette_, Place::palette},
                                                              {&selected_color_, Place::selected_color}}};
    for (const auto& [pane, place] : panes) {
        if (pane->area.contains(point)) {
            return place;
        }
    }
    if (toolbox->state().is_in_selection_group() && copy_panes_.current().area.contains(point)) {
        return Place::copy_buffer;
    }
    if (toolbox->state().is_in_selection_group() && copy_panes_.previous().area.contains(point)) {
        return Place::previous_copies;
    }
    return std::nullopt;
}

// The second of two quick clicks counts only on what the first one was on: neighbours are close together.
Double_Click Window_Panes::double_click(const Pointer_State& pointer, int count) {
    const Click_Target target = target_at(pointer);
    const bool is_second = count > 1 && target == last_target_;
    last_target_ = is_second ? Click_Target{} : target;
    return is_second ? target.meaning : Double_Click::none;
}

void Window_Panes::store_color(Color color) {
    if (!palette_.has_entries()) {
        report_palette("It has no entry for a color.");
        return;
    }
    const int before = palette_.index();
    palette_.store(color);
    const bool is_copy = palette_.index() != before;
    report_palette(hex_text(color) + (is_copy ? " is stored in a copy of it: " + palette_.palette().name + "."
                                              : " is stored there. Menu, Undo takes it back."));
}

void Window_Panes::report_palette(std::string_view what) {
    const std::string note = palette_.list().take_note();
    hint_lines_.report({"Palette", note.empty() ? std::string(what) : note});
}

// With Shift a click on the palette stores.
Window_Panes::Click_Target Window_Panes::target_at(const Pointer_State& pointer) const {
    const Point point = pointer.point();
    if (const std::optional<Mouse_Button> side = button_color_at(point)) {
        return {side == Mouse_Button::left ? Double_Click::edit_left_color : Double_Click::edit_right_color};
    }
    if (const std::optional<int> entry = palette_.entry_at(point); entry && !is_shift_held()) {
        return {Double_Click::edit_palette_color, static_cast<std::size_t>(*entry)};
    }
    if (selected_color_.has_entry_at(point)) {
        return {Double_Click::edit_selected_color};
    }
    if (const std::optional<std::size_t> copy = copy_at(point);
        copy && pointer.button == Mouse_Button::left) {
        return {Double_Click::paste_copy, *copy};
    }
    return {};
}

// Both colours stand above the pane "Selected", and with tools that use them in panes of their own.
std::optional<Mouse_Button> Window_Panes::button_color_at(Point point) const {
    const std::optional<Mouse_Button> small = selected_color_.button_color_at(point);
    return small ? small : toolbox->button_color_at(point);
}

Pane_Click Window_Panes::click(Pointer_State& pointer, int count) {
    if (const Double_Click twice = double_click(pointer, count); twice != Double_Click::none) {
        return {.twice = twice};
    }
    if (const Pane_Popup popup = popup_at(pointer.point()); popup != Pane_Popup::none) {
        return {.popup = popup};
    }
    if (take_click(pointer)) {
        return {};
    }
    const Command command = click_buttons(pointer);
    if (command != Command::none) {
        return {.command = command};
    }
    const Command chosen = menu_bar_.click(pointer);
    if (chosen != Command::none) {
        // Nothing under the closed menu reacts to where it was clicked.
        pointer = pointer_nowhere;
    }
    return {.command = chosen};
}

// What a pane does by itself: options, brushes, colours and copies are chosen.
bool Window_Panes::take_click(const Pointer_State& pointer) {
    const Point point = pointer.point();
    if (toolbox->click(pointer, [this] { redraw_(Present::yes); })) {
        return true;
    }
    if (const std::optional<Mouse_Button> side = selected_color_.button_color_at(point)) {
        tool_colors->light(*side);
        return true;
    }
    if (selected_color_.store_button().contains(point)) {
        store_color(tool_colors->current_color());
        return true;
    }
    return take_palette_click(pointer) || take_copy_click(pointer);
}

Pane_Popup Window_Panes::popup_at(Point point) const {
    if (palette_.menu_button().contains(point)) {
        return Pane_Popup::palette_menu;
    }
    return palette_.name_area().contains(point) ? Pane_Popup::palette_names : Pane_Popup::none;
}

bool Window_Panes::take_palette_click(const Pointer_State& pointer) {
    if (palette_.has_transparent_at(pointer.point())) {
        tool_colors->set_color(pointer.button, standard_color(Standard_Color::transparent));
        return true;
    }
    const std::optional<Color> color = palette_.click(pointer.point());
    if (color && is_shift_held()) {
        store_color(pointer.button == Mouse_Button::left ? tool_colors->current_color()
                                                         : tool_colors->other_color());
    } else if (color) {
        tool_colors->set_color(pointer.button, *color);
    }
    if (color && !is_shift_held() && pointer.button == Mouse_Button::left) {
        drag_palette_entry();
    }
    return color.has_value();
}

void Window_Panes::drag_palette_entry() {
    const int entry = palette_.entry();
    palette_.drag([this] { redraw_(Present::yes); });
    if (palette_.entry() != entry) {
        report_palette("The color is moved in " + palette_.palette().name + ". Menu, Undo takes it back.");
    }
}

// The left button chooses a copy, the right one removes it.
bool Window_Panes::take_copy_click(const Pointer_State& pointer) {
    const std::optional<std::size_t> copy = copy_at(pointer.point());
    if (!copy) {
        return false;
    }
    if (pointer.button == Mouse_Button::right) {
        copies_.remove(*copy);
    } else {
        copies_.choose(*copy);
    }
    return true;
}

// With other tools they are not there.
std::optional<std::size_t> Window_Panes::copy_at(Point point) const {
    const std::optional<std::size_t> cell =
        toolbox->state().is_in_selection_group() ? copy_panes_.cell_at(point) : std::nullopt;
    return cell && *cell < copies_.copies().size() ? cell : std::nullopt;
}

// The tools of the list and the buttons of the navigation take either button, all else the left one.
Command Window_Panes::click_buttons(const Pointer_State& pointer) {
    const Point point = pointer.point();
    const Command step = navigation_.click(point);
    if (pointer.button != Mouse_Button::left) {
        return step == Command::none ? toolbox->command_at(point) : step;
    }
    Tileset_Document& document = documents_.current();
    const int tile = tile_at(document.strip(), point);
    if (tile >= 0 && tile != document.tileset().current_index()) {
        documents_.go_to_tile(tile);
        size_preview();
        return Command::change_tile;
    }
    set_outline_type(icon_bar_.command_at(point));
    return command_at(point);
}

} // namespace quadrelle
