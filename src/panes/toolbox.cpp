#include "panes/toolbox.h"

#include "base/block_file.h"
#include "base/data_directory.h"
#include "base/data_stream.h"
#include "color/standard_colors.h"
#include "panes/command_icons.h"
#include "panes/tool_color_panel.h"
#include "screen/screen.h"
#include "ui/control.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace quadrelle {

std::unique_ptr<Toolbox> toolbox;

namespace {

constexpr Size entry_size{window_layout::tool_list.width, 26};

constexpr Point icon_offset{1, 1};
constexpr Point name_offset{32, 3};

void draw_entry(const Tool_Row& tool, std::string_view name, const Rectangle& area, bool is_chosen) {
    const auto fill = is_chosen ? Standard_Color::list_active : Standard_Color::list_passive;
    const Sprite icon = is_chosen ? lit_twin(icon_of(tool.command)) : icon_of(tool.command);
    screen->draw_box(area, standard_color(fill));
    screen->draw_sprite(icon, {area.x + icon_offset.x, area.y + icon_offset.y});
    screen->draw_text(Font::pane, {area.x + name_offset.x, area.y + name_offset.y}, name);
    draw_answer(area);
}

// The dropper takes no clicks on the panes below the two colours.
Tool_Color_Panes color_panes_of(Tool tool) {
    if (row_of(tool).uses_tool_colors) {
        return Tool_Color_Panes::all;
    }
    return tool == Tool::dropper ? Tool_Color_Panes::both_colors : Tool_Color_Panes::none;
}

constexpr const char* brush_pad_file = "brushpad.dat";

// The other programs of a folder do not overwrite what the first one keeps.
std::string brush_pad_path() {
    const int number = data_directory().program_number();
    return data_directory().path(number == 1 ? brush_pad_file : "brushpad" + std::to_string(number) + ".dat");
}

// Where that has no pad of its own yet it begins with the other one.
void load_brush_pad(Brush_Pad& pad) {
    Block_File own(brush_pad_path());
    Block_File common(data_directory().path(brush_pad_file));
    Block_File& file = own.open_read() ? own : common;
    if (file.open_read()) {
        Data_Stream record;
        record.load_from(file);
        pad.load(record);
    }
}

bool save_brush_pad(const Brush_Pad& pad) {
    Data_Stream record;
    pad.save(record);
    return record.save_to(brush_pad_path());
}

} // namespace

Toolbox::Toolbox(Point position) : position_(position) {
    tool_colors = std::make_unique<Tool_Color_Panel>(state_.colors);
    lay_out();
    load_brush_pad(state_.brush_pad);
}

Toolbox::~Toolbox() {
    if (state_.brush_pad.changed()) {
        static_cast<void>(save_brush_pad(state_.brush_pad));
    }
    tool_colors.reset();
}

bool Toolbox::keep_brush_pad() {
    Brush_Pad& pad = state_.brush_pad;
    if (!pad.changed() || std::exchange(tried_revision_, pad.revision()) == pad.revision()) {
        return true;
    }
    if (!save_brush_pad(pad)) {
        return false;
    }
    pad.clear_changed();
    return true;
}

Rectangle Toolbox::entry_area(std::size_t index) const {
    return {position_.x, position_.y + static_cast<int>(index) * entry_size.height, entry_size.width,
            entry_size.height};
}

// Below the chosen tool's entry, over the entries that come there.
void Toolbox::lay_out() {
    rows_top_ = entry_area(static_cast<std::size_t>(state_.tool)).bottom();
    Point next{position_.x, rows_top_ + element_gap};
    if (row_of(state_.tool).uses_brush) {
        next.y = brush_selector_.move(next);
    }
    rows_bottom_ = option_panes_.place(state_.tool, next);
    if (shows_selected_brush()) {
        rows_bottom_ = brush_pad_panes_.move_selected({position_.x, rows_bottom_});
    }
}

void Toolbox::select(Command command) {
    state_.select(command);
    if (tool_of(command) != Tool::none) {
        lay_out();
    }
}

bool Toolbox::shows_selected_brush() const {
    return state_.tool == Tool::stamp_brush || state_.fills_with_brush();
}

bool Toolbox::click_selected_brush(Point point) {
    return shows_selected_brush() && brush_pad_panes_.has_selected_at(point) && state_.bring_stamp_back();
}

// Of the flood fill, one shows the brush and the other one does not.
bool Toolbox::click_options(Point point) {
    if (!option_panes_.click(point, state_.options)) {
        return false;
    }
    lay_out();
    return true;
}

bool Toolbox::click_brush_pad(Point point) {
    const std::optional<Tile_Point> cell = brush_pad_panes_.cell_at(point);
    return state_.tool == Tool::stamp_brush && cell && state_.choose_from_pad(*cell);
}

int Toolbox::entry_top() const {
    return entry_area(static_cast<std::size_t>(state_.tool)).y;
}

void Toolbox::draw(Point pointer) {
    for (std::size_t i = 0; i < tool_table.size(); ++i) {
        const Rectangle entry = entry_area(i);
        if (command_at({entry.x, entry.y}) != Command::none) {
            const Tool_Row& tool = tool_table.at(i);
            const bool is_chosen = tool.id == state_.tool;
            const bool is_eraser = is_chosen && state_.is_erasing;
            draw_entry(tool, is_eraser ? "Eraser" : tool.name, entry, is_chosen);
        }
    }
    // After all rows, so that most of them are found again in the frame of another tool.
    screen->draw_outline(entry_area(static_cast<std::size_t>(state_.tool)),
                         standard_color(Standard_Color::highlight));
    if (row_of(state_.tool).uses_brush) {
        brush_selector_.draw(state_.chosen_brush);
    }
    option_panes_.draw(state_);
    tool_colors->draw(color_panes_of(state_.tool));
    if (shows_selected_brush()) {
        brush_pad_panes_.draw_selected(state_.brush_pad, state_.chosen_brush, state_.colors.current());
    }
    if (state_.tool == Tool::stamp_brush) {
        brush_pad_panes_.draw_board(state_.brush_pad, pointer);
    }
}

std::optional<Mouse_Button> Toolbox::button_color_at(Point point) const {
    return color_panes_of(state_.tool) == Tool_Color_Panes::none ? std::nullopt
                                                                 : tool_colors->button_color_at(point);
}

std::optional<Place> Toolbox::place_at(Point point) const {
    if (state_.tool == Tool::stamp_brush && brush_pad_panes_.has_board_at(point)) {
        return Place::brush_pad;
    }
    if (shows_selected_brush() && brush_pad_panes_.has_selected_at(point)) {
        return Place::selected_brush;
    }
    return tool_colors->place_at(point, color_panes_of(state_.tool));
}

Command Toolbox::command_at(Point point) const {
    for (std::size_t i = 0; i < tool_table.size(); ++i) {
        const Rectangle entry = entry_area(i);
        const bool is_covered = entry.bottom() > rows_top_ && entry.y < rows_bottom_;
        if (!is_covered && entry.contains(point)) {
            return tool_table.at(i).command;
        }
    }
    return Command::none;
}

bool Toolbox::click(const Pointer_State& pointer, const std::function<void()>& redraw) {
    const Tool_Row& tool = row_of(state_.tool);
    return (tool.uses_tool_colors && tool_colors->click(pointer, redraw)) ||
           (tool.uses_brush && brush_selector_.click(pointer.point(), state_.chosen_brush)) ||
           click_options(pointer.point()) || click_selected_brush(pointer.point()) ||
           click_brush_pad(pointer.point());
}

} // namespace quadrelle
