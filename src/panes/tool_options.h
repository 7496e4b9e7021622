#pragma once

// The option rows of the tools: what each tool can be told, and the figures that it shows while dragging.

#include "base/geometry.h"
#include "base/table.h"
#include "panes/tool_color.h"
#include "tools/tool_catalogue.h"
#include "ui/dialog_pane.h"
#include "ui/location_info.h"
#include "ui/number_info.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace quadrelle {

enum class Tool_Option : std::int32_t {
    stamp_mode,
    right_button_mode,
    pen_mode,
    dropper_return,
    colorize_type,
    rectangle_type,
    ellipse_type,
    lightness_mode,
    button_order,
    speed,
    size_compensation,
    fill_mode,
    selection_mode,
    scroll_move,
    wand_mode,
    count
};

enum class Tool_Option_Kind { choice, tick };

struct Tool_Option_Row {
    Tool_Option id;
    Tool_Option_Kind kind;
    std::string_view label;
    std::string_view text; // the choices, or what stands beside the tick
    int initial;
};

constexpr std::size_t tool_option_count = 15;

// The labels of the dropper's tick and of the size compensation are deliberate.
// clang-format off
constexpr std::array<Tool_Option_Row, tool_option_count> tool_option_table{{
    {Tool_Option::stamp_mode,        Tool_Option_Kind::choice, "Mode",              "Brush,Pattern,Offset$", 0},
    {Tool_Option::right_button_mode, Tool_Option_Kind::choice, "Right button mode", "Color,History,Dropper$", 0},
    {Tool_Option::pen_mode,          Tool_Option_Kind::choice, "Mode",              "Brush,Pattern,Offset$", 0},
    {Tool_Option::dropper_return,    Tool_Option_Kind::tick,   "Mode",              "Select previous tool", 0},
    {Tool_Option::colorize_type,     Tool_Option_Kind::choice, "Type",              "Linear,Luma$", 0},
    {Tool_Option::rectangle_type,    Tool_Option_Kind::choice, "Type",              "Outline,Filled,Filled & Outline$", 0},
    {Tool_Option::ellipse_type,      Tool_Option_Kind::choice, "Type",              "Outline,Filled,Filled & Outline$", 0},
    {Tool_Option::lightness_mode,    Tool_Option_Kind::choice, "Mode",              "Linear (washed),Perception (warm)$", 0},
    {Tool_Option::button_order,      Tool_Option_Kind::choice, "Button order",      "L:Lighten - R:Darken,L:Darken - R:Lighten$", 0},
    {Tool_Option::speed,             Tool_Option_Kind::choice, "Speed",             "Extremely slow,Very slow,Slow,Moderate,Fast,Very fast,Extremely fast$", 3},
    {Tool_Option::size_compensation, Tool_Option_Kind::tick,   "Speed",             "Size compensation", 0},
    {Tool_Option::fill_mode,         Tool_Option_Kind::choice, "Mode",              "Solid,Stamp$", 0},
    {Tool_Option::selection_mode,    Tool_Option_Kind::choice, "Mode",              "Standard,Persistent,Fixed$", 0},
    {Tool_Option::scroll_move,       Tool_Option_Kind::choice, "Move",              "Both,Pixels,Selection$", 0},
    {Tool_Option::wand_mode,         Tool_Option_Kind::choice, "Mode",              "Normal,Quick copy,Quick cut$", 0},
}};
// clang-format on

static_assert(tool_option_count == static_cast<std::size_t>(Tool_Option::count));
static_assert(rows_follow_their_ids(tool_option_table));

class Tool_Options {
public:
    Tool_Options();
    ~Tool_Options();

    [[nodiscard]] int value(Tool_Option option) const;
    void set_value(Tool_Option option, int value);

    // Shows the tool's rows from `position` downwards; those that stand above the brush rows, and the rest.
    int place_first(Tool tool, Point position);
    int place_rest(Tool tool, Point position);
    void draw() const;
    // True when a visible row took the click.
    bool click(Point point);

    void set_location(Point location) { location_.set_values(location); }
    void set_size(Size size) { size_.set_values({size.width, size.height}); }
    void set_radius(Point radii) { radius_.set_values(radii); }
    void set_dropper_color(Color color) { dropper_color_.set_color(color); }
    void set_length(int length) { length_.set_value(length); }
    void set_offset(Point offset) { offset_.set_values(offset); }
    void set_degrees(int degrees) { degrees_.set_value(degrees); }

private:
    [[nodiscard]] Dialog_Pane& pane(Tool_Option option) const;
    [[nodiscard]] Pane* figures_of(Tool tool);
    int place(Pane& row, Point position);

    std::array<std::unique_ptr<Dialog_Pane>, tool_option_count> panes_;
    Location_Info location_;
    Location_Info size_;
    Location_Info radius_;
    Location_Info offset_;
    Number_Info length_;
    Number_Info degrees_;
    Tool_Color dropper_color_;
    std::vector<Dialog_Pane*> visible_options_;
    std::vector<Pane*> visible_;
};

} // namespace quadrelle
