#include "tools/toolbox.h"

#include "app/options.h"
#include "app/screen.h"
#include "color/standard_colors.h"
#include "tools/tool_colors.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quadrelle {

std::unique_ptr<Toolbox> toolbox;

namespace {

constexpr Size entry_size{202, 26};
constexpr int color_panel_offset = 210;

// The tools that can be chosen, from the top of the list.
constexpr std::array listed_tools = {Tool::pen,          Tool::lightness_pen, Tool::colorize_pen,
                                     Tool::smudge_brush, Tool::dropper,       Tool::flood_fill,
                                     Tool::line,         Tool::rectangle,     Tool::ellipse};

constexpr Point icon_offset{1, 1};
constexpr Point name_offset{32, 3};

static_assert(std::ranges::all_of(tool_table, has_lit_twin, &Tool_Row::icon));

void draw_entry(const Tool_Row& tool, const Rectangle& area, bool is_chosen) {
    const auto fill = is_chosen ? Standard_Color::list_active : Standard_Color::list_passive;
    const Sprite icon = is_chosen ? lit_twin(tool.icon) : tool.icon;
    screen->draw_box(area, standard_color(fill));
    screen->draw_sprite(icon, {area.x + icon_offset.x, area.y + icon_offset.y});
    screen->draw_text(Font::pane, {area.x + name_offset.x, area.y + name_offset.y}, tool.name);
}

} // namespace

Toolbox::Toolbox(Point position) : position_(position) {
    tool_colors = std::make_unique<Tool_Color_Panel>(Point{position.x + color_panel_offset, position.y});
    lay_out();
}

Toolbox::~Toolbox() {
    tool_colors.reset();
}

Rectangle Toolbox::entry_area(std::size_t index) const {
    return {position_.x, position_.y + static_cast<int>(index) * entry_size.height, entry_size.width,
            entry_size.height};
}

// Below the chosen tool's entry, over the entries that come there.
void Toolbox::lay_out() {
    const auto chosen = std::ranges::find(listed_tools, current_tool_);
    const auto index = static_cast<std::size_t>(chosen - listed_tools.begin());
    rows_top_ = entry_area(index).bottom();
    Point next{position_.x, rows_top_ + element_gap};
    next.y = options_.place_first(current_tool_, next);
    if (row_of(current_tool_).uses_brush) {
        next.y = brush_selector_.move(next);
    }
    rows_bottom_ = options_.place_rest(current_tool_, next);
}

void Toolbox::select(Command command) {
    if (current_command_ != previous_command_) {
        previous_command_ = current_command_;
    }
    current_command_ = command;
    const Tool tool = tool_of(command);
    if (tool != Tool::none) {
        current_tool_ = tool;
        lay_out();
    }
}

Shape_Type Toolbox::shape_type() const {
    const Tool_Option row =
        current_tool_ == Tool::ellipse ? Tool_Option::ellipse_type : Tool_Option::rectangle_type;
    return static_cast<Shape_Type>(options_.value(row));
}

Canvas_Action Toolbox::canvas_action() const {
    return canvas_action_of(current_command_, shape_type());
}

Point Toolbox::pointer_offset(int pixel_size) const {
    if (quadrelle::options->value(Option::precise_brush) == 0) {
        return {};
    }
    const Size size = brush().size();
    return {(size.width - 1) * pixel_size / 2, (size.height - 1) * pixel_size / 2};
}

void Toolbox::draw() const {
    for (std::size_t i = 0; i < listed_tools.size(); ++i) {
        const Rectangle entry = entry_area(i);
        if (command_at({entry.x, entry.y}) != Command::none) {
            draw_entry(row_of(listed_tools.at(i)), entry, listed_tools.at(i) == current_tool_);
        }
    }
    if (row_of(current_tool_).uses_brush) {
        brush_selector_.draw();
    }
    options_.draw();
    tool_colors->draw();
}

Command Toolbox::command_at(Point point) const {
    for (std::size_t i = 0; i < listed_tools.size(); ++i) {
        const Rectangle entry = entry_area(i);
        const bool is_covered = entry.bottom() > rows_top_ && entry.y < rows_bottom_;
        if (!is_covered && entry.contains(point)) {
            return row_of(listed_tools.at(i)).command;
        }
    }
    return Command::none;
}

bool Toolbox::click(const Pointer_State& pointer) {
    const Tool_Row& tool = row_of(current_tool_);
    return (tool.uses_tool_colors && tool_colors->click(pointer.point())) ||
           (tool.uses_brush && brush_selector_.click(pointer.point())) || options_.click(pointer.point());
}

} // namespace quadrelle
