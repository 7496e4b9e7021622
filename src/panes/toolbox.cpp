#include "panes/toolbox.h"

#include "base/block_file.h"
#include "base/data_directory.h"
#include "base/data_stream.h"
#include "color/standard_colors.h"
#include "commands/command_table.h"
#include "panes/tool_colors.h"
#include "screen/screen.h"
#include "tools/lightness_pace.h"
#include "ui/options.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace quadrelle {

std::unique_ptr<Toolbox> toolbox;

namespace {

constexpr Size entry_size{202, 26};
constexpr int color_panel_offset = 210;
constexpr int side_offset = 207;

constexpr Point icon_offset{1, 1};
constexpr Point name_offset{32, 3};

static_assert(std::ranges::all_of(tool_table, has_lit_twin, &Tool_Row::icon));

// Of the five tools whose command rebuilds the brush. Selecting an area has no brush of its own.
std::optional<Brush_Owner> brush_owner_of(Command command) {
    switch (command) {
    case Command::pen: return Brush_Owner::pen;
    case Command::lightness_pen: return Brush_Owner::lightness_pen;
    case Command::colorize_pen: return Brush_Owner::colorize_pen;
    case Command::smudge_brush: return Brush_Owner::smudge_brush;
    case Command::brush_selector: return Brush_Owner::none;
    default: return std::nullopt;
    }
}

void draw_entry(const Tool_Row& tool, const Rectangle& area, bool is_chosen) {
    const auto fill = is_chosen ? Standard_Color::list_active : Standard_Color::list_passive;
    const Sprite icon = is_chosen ? lit_twin(tool.icon) : tool.icon;
    screen->draw_box(area, standard_color(fill));
    screen->draw_sprite(icon, {area.x + icon_offset.x, area.y + icon_offset.y});
    screen->draw_text(Font::pane, {area.x + name_offset.x, area.y + name_offset.y}, tool.name);
}

std::string brush_pad_path() {
    return data_directory().path("brushpad.dat");
}

void load_brush_pad(Brush_Pad& pad) {
    Block_File file(brush_pad_path());
    if (file.open_read()) {
        Data_Stream record;
        record.load_from(file);
        pad.load(record);
    }
}

void save_brush_pad(const Brush_Pad& pad) {
    Data_Stream record;
    pad.save(record);
    static_cast<void>(record.save_to(brush_pad_path()));
}

} // namespace

Toolbox::Toolbox(Point position)
    : position_(position), brush_pad_panes_({position.x + side_offset, position.y}) {
    tool_colors = std::make_unique<Tool_Color_Panel>(Point{position.x + color_panel_offset, position.y});
    lay_out();
    load_brush_pad(brush_pad_);
}

Toolbox::~Toolbox() {
    if (brush_pad_.changed()) {
        save_brush_pad(brush_pad_);
    }
    tool_colors.reset();
}

Rectangle Toolbox::entry_area(std::size_t index) const {
    return {position_.x, position_.y + static_cast<int>(index) * entry_size.height, entry_size.width,
            entry_size.height};
}

// Below the chosen tool's entry, over the entries that come there.
void Toolbox::lay_out() {
    rows_top_ = entry_area(static_cast<std::size_t>(current_tool_)).bottom();
    Point next{position_.x, rows_top_ + element_gap};
    next.y = options_.place_first(current_tool_, next);
    if (row_of(current_tool_).uses_brush) {
        next.y = brush_selector_.move(next);
    }
    rows_bottom_ = options_.place_rest(current_tool_, next);
    if (current_tool_ == Tool::stamp_brush) {
        rows_bottom_ = brush_pad_panes_.move_selected({position_.x, rows_bottom_});
    }
}

void Toolbox::select(Command command) {
    if (current_command_ != previous_command_) {
        previous_command_ = current_command_;
    }
    current_command_ = command;
    if (const std::optional<Brush_Owner> owner = brush_owner_of(command)) {
        brush_selector_.set_owner(*owner);
    } else if (command == Command::stamp_brush && brush_pad_.has_current()) {
        take_pad_brush();
    }
    const Tool tool = tool_of(command);
    if (tool != Tool::none) {
        current_tool_ = tool;
        lay_out();
    }
}

void Toolbox::take_pad_brush() {
    if (brush_pad_.has_current()) {
        brush_selector_.set_stamp(brush_pad_.current_brush());
    } else {
        brush_selector_.set_owner(Brush_Owner::pen);
    }
}

bool Toolbox::use_as_brush(const Tile& picture, const Tile& mask) {
    if (!brush_pad_.make_temporary(picture, mask)) {
        return false;
    }
    take_pad_brush();
    return true;
}

bool Toolbox::move_to_pad() {
    if (!brush_pad_.move_to_pad()) {
        return false;
    }
    take_pad_brush();
    return true;
}

bool Toolbox::delete_brush() {
    if (!brush_pad_.delete_current()) {
        return false;
    }
    take_pad_brush();
    return true;
}

bool Toolbox::has_brush_pad_at(Point point) const {
    return current_tool_ == Tool::stamp_brush && brush_pad_panes_.cell_at(point).has_value();
}

bool Toolbox::click_brush_pad(Point point) {
    if (!has_brush_pad_at(point) || !brush_pad_.click(*brush_pad_panes_.cell_at(point))) {
        return false;
    }
    take_pad_brush();
    return true;
}

Shape_Type Toolbox::shape_type() const {
    const Tool_Option row =
        current_tool_ == Tool::ellipse ? Tool_Option::ellipse_type : Tool_Option::rectangle_type;
    return static_cast<Shape_Type>(options_.value(row));
}

Canvas_Action Toolbox::canvas_action() const {
    return canvas_action_of(current_command_, shape_type());
}

std::optional<Pixel_Operation> Toolbox::lightness_step(std::int64_t now, Mouse_Button button) {
    const Lightness_Pace pace{static_cast<Lightness_Speed>(value(Tool_Option::speed)),
                              static_cast<Size_Compensation>(value(Tool_Option::size_compensation)),
                              static_cast<Button_Order>(value(Tool_Option::button_order))};
    const auto step = quadrelle::lightness_step(now, last_step_time_, pace, brush().size().width, button);
    last_step_time_ = step ? now : last_step_time_;
    return step;
}

bool Toolbox::uses_brush() const {
    return row_of(row_of(current_tool_).command).has(Command_Trait::brush);
}

bool Toolbox::is_in_selection_group() const {
    switch (current_tool_) {
    case Tool::rectangle_selector:
    case Tool::circle_selector:
    case Tool::brush_selector:
    case Tool::wand_selector:
    case Tool::selection: return true;
    default: return false;
    }
}

Point Toolbox::beside_entry() const {
    return {position_.x + side_offset, entry_area(static_cast<std::size_t>(current_tool_)).y};
}

bool Toolbox::shows_floating_paste() const {
    return current_tool_ == Tool::selection || current_tool_ == Tool::rotate ||
           selection_mode() == Selection_Mode::fixed;
}

bool Toolbox::shows_brush_outline() const {
    const int choice = quadrelle::options->value(Option::precise_brush);
    return uses_brush() && choice != 0 && (choice != 2 || brush().size() != Size{1, 1});
}

// Nothing for brushes that change the colour which is there, nor where the pen paints from the history.
bool Toolbox::shows_brush_preview(Mouse_Button button) const {
    const bool has_colors =
        brush().owner() == Brush_Owner::pen || brush().owner() == Brush_Owner::stamp_brush;
    const bool paints_otherwise = button == Mouse_Button::right && current_tool_ == Tool::pen &&
                                  value(Tool_Option::right_button_mode) != 0;
    return uses_brush() && has_colors && !paints_otherwise &&
           quadrelle::options->value(Option::show_shadow_brush) == 1;
}

std::optional<Color> Toolbox::brush_color(Mouse_Button button) const {
    if (brush().owner() == Brush_Owner::stamp_brush) {
        return std::nullopt;
    }
    const bool follows_button = current_tool_ != Tool::stamp_brush && button != Mouse_Button::none;
    return follows_button ? tool_colors->color(button) : tool_colors->current_color();
}

Pen_Mode Toolbox::pen_mode() const {
    switch (current_tool_) {
    case Tool::pen: return static_cast<Pen_Mode>(value(Tool_Option::pen_mode));
    case Tool::stamp_brush: return static_cast<Pen_Mode>(value(Tool_Option::stamp_mode));
    default: return Pen_Mode::brush;
    }
}

Tile_Point Toolbox::brush_corner(Tile_Point position) const {
    return pen_mode() == Pen_Mode::offset ? snapped_to_grid(position, brush().size()) : position;
}

Point Toolbox::pointer_offset(int pixel_size) const {
    if (!shows_brush_outline()) {
        return {};
    }
    const Size size = brush().size();
    return {(size.width - 1) * pixel_size / 2, (size.height - 1) * pixel_size / 2};
}

void Toolbox::draw(Point pointer) {
    for (std::size_t i = 0; i < tool_table.size(); ++i) {
        const Rectangle entry = entry_area(i);
        if (command_at({entry.x, entry.y}) != Command::none) {
            draw_entry(tool_table.at(i), entry, tool_table.at(i).id == current_tool_);
        }
    }
    if (row_of(current_tool_).uses_brush) {
        brush_selector_.draw();
    }
    options_.draw();
    if (row_of(current_tool_).uses_tool_colors) {
        tool_colors->draw(Tool_Color_Panes::all);
    } else if (current_tool_ == Tool::dropper) {
        // It takes no clicks on the others.
        tool_colors->draw(Tool_Color_Panes::both_colors);
    }
    if (current_tool_ == Tool::stamp_brush) {
        brush_pad_panes_.draw(brush_pad_, pointer);
    }
}

std::optional<Place> Toolbox::place_at(Point point) const {
    if (has_brush_pad_at(point)) {
        return Place::brush_pad;
    }
    if (row_of(current_tool_).uses_tool_colors) {
        return tool_colors->place_at(point, Tool_Color_Panes::all);
    }
    return current_tool_ == Tool::dropper ? tool_colors->place_at(point, Tool_Color_Panes::both_colors)
                                          : std::nullopt;
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
    const Tool_Row& tool = row_of(current_tool_);
    return (tool.uses_tool_colors && tool_colors->click(pointer, redraw)) ||
           (tool.uses_brush && brush_selector_.click(pointer.point())) || options_.click(pointer.point()) ||
           click_brush_pad(pointer.point());
}

} // namespace quadrelle
