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
constexpr std::array listed_tools = {Tool::pen};

constexpr int icon_edge = 24;
constexpr Point icon_offset{1, 1};
constexpr Point name_offset{32, 3};

// The twins stand side by side on the sheet.
constexpr bool has_lit_twin(const Tool_Row& tool) {
    const auto index = static_cast<std::size_t>(tool.icon);
    const Sprite_Row& plain = sprite_table.at(index);
    const Sprite_Row& lit = sprite_table.at(index + 1);
    return lit.x == plain.x + icon_edge && lit.y == plain.y;
}

static_assert(std::ranges::all_of(tool_table, has_lit_twin));

void draw_entry(const Tool_Row& tool, const Rectangle& area, bool is_chosen) {
    const auto fill = is_chosen ? Standard_Color::list_active : Standard_Color::list_passive;
    const auto icon = static_cast<Sprite>(static_cast<int>(tool.icon) + (is_chosen ? 1 : 0));
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

void Toolbox::lay_out() {
    brush_selector_.move({position_.x, position_.y + entry_size.height + element_gap});
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

Canvas_Action Toolbox::canvas_action() const {
    return canvas_action_of(current_command_, Shape_Type::outline);
}

Point Toolbox::pointer_offset(int pixel_size) const {
    if (options->value(Option::precise_brush) == 0) {
        return {};
    }
    const Size size = brush().size();
    return {(size.width - 1) * pixel_size / 2, (size.height - 1) * pixel_size / 2};
}

void Toolbox::draw() const {
    Rectangle entry{position_.x, position_.y, entry_size.width, entry_size.height};
    for (const Tool tool : listed_tools) {
        draw_entry(row_of(tool), entry, tool == current_tool_);
        entry.y += entry.height;
    }
    brush_selector_.draw();
    tool_colors->draw();
}

bool Toolbox::click(const Pointer_State& pointer) {
    return tool_colors->click(pointer.point()) || brush_selector_.click(pointer.point());
}

} // namespace quadrelle
