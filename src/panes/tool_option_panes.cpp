#include "panes/tool_option_panes.h"

#include "ui/window_layout.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <type_traits>

namespace quadrelle {

namespace {

constexpr Rectangle row_area =
    below_title({0, 0, window_layout::column_width, window_layout::row_pane_height});

enum class Tool_Option_Kind { choice, tick };
enum class Tool_Option_Place { above_figures, below_figures };

// A choice is kept as an enum and shown as the number of its text; here one becomes the other.
struct Tool_Option_Access {
    int (*value)(const Tool_Options& options);
    void (*choose)(Tool_Options& options, int value);
};

template <auto field>
constexpr Tool_Option_Access access{
    [](const Tool_Options& options) { return static_cast<int>(options.*field); },
    [](Tool_Options& options, int value) {
        options.*field = static_cast<std::remove_reference_t<decltype(options.*field)>>(value);
    }};

struct Tool_Option_Row {
    Tool tool;
    Tool other_tool; // that shows it too, or none
    Tool_Option_Place place;
    Tool_Option_Kind kind;
    std::string_view label;
    std::string_view text; // the choices, or what stands beside the tick
    Tool_Option_Access option;
};

// A tool's rows stand in this order. The labels of the dropper's tick and of the size compensation are
// deliberate.
constexpr auto none = Tool::none;
constexpr auto above = Tool_Option_Place::above_figures;
constexpr auto below = Tool_Option_Place::below_figures;
constexpr auto choice = Tool_Option_Kind::choice;
constexpr auto tick = Tool_Option_Kind::tick;
// clang-format off
constexpr std::array tool_option_table = std::to_array<Tool_Option_Row>({
    {Tool::stamp_brush,   none,               below, choice, "Mode",              "Brush,Pattern,Offset$",                                     access<&Tool_Options::stamp_mode>},
    {Tool::pen,           none,               below, choice, "Mode",              "Brush,Pattern,Offset$",                                     access<&Tool_Options::pen_mode>},
    {Tool::pen,           Tool::colorize_pen, below, choice, "Right button mode", "Color,History,Dropper$",                                    access<&Tool_Options::right_button_mode>},
    {Tool::dropper,       none,               below, tick,   "Mode",              "Select previous tool",                                      access<&Tool_Options::dropper_return>},
    {Tool::colorize_pen,  none,               below, choice, "Type",              "Linear,Luma$",                                              access<&Tool_Options::colorize_type>},
    {Tool::rectangle,     none,               above, choice, "Type",              "Outline,Filled,Filled & Outline$",                          access<&Tool_Options::rectangle_type>},
    {Tool::ellipse,       none,               above, choice, "Type",              "Outline,Filled,Filled & Outline$",                          access<&Tool_Options::ellipse_type>},
    {Tool::lightness_pen, none,               below, choice, "Button order",      "L:Lighten - R:Darken,L:Darken - R:Lighten$",                access<&Tool_Options::button_order>},
    {Tool::lightness_pen, none,               below, choice, "Mode",              "Linear (washed),Perception (warm)$",                        access<&Tool_Options::lightness_mode>},
    {Tool::lightness_pen, none,               below, choice, "Speed",             "Extremely slow,Very slow,Slow,Moderate,Fast,Very fast,Extremely fast$", access<&Tool_Options::speed>},
    {Tool::lightness_pen, none,               below, tick,   "Speed",             "Size compensation",                                         access<&Tool_Options::size_compensation>},
    {Tool::flood_fill,    none,               below, choice, "Mode",              "Solid,Stamp$",                                              access<&Tool_Options::fill_mode>},
    {Tool::selection,     none,               above, choice, "Mode",              "Standard,Persistent,Fixed$",                                access<&Tool_Options::selection_mode>},
    {Tool::scroll,        none,               below, choice, "Move",              "Both,Pixels,Selection$",                                    access<&Tool_Options::scroll_move>},
    {Tool::wand_selector, none,               below, choice, "Mode",              "Normal,Quick copy,Quick cut$",                              access<&Tool_Options::wand_mode>},
});
// clang-format on

static_assert(sizeof(Tool_Options) == tool_option_table.size() * sizeof(std::int32_t),
              "each option has its row");

std::unique_ptr<Dialog_Pane> make_pane(const Tool_Option_Row& row) {
    if (row.kind == Tool_Option_Kind::tick) {
        return std::make_unique<Tick_Pane>(row_area, row.label, row.text);
    }
    return std::make_unique<Option_Pane>(row_area, row.label, row.text, 0);
}

bool is_shown_for(Tool tool, const Tool_Option_Row& row) {
    return row.tool == tool || row.other_tool == tool;
}

} // namespace

Tool_Option_Panes::Tool_Option_Panes()
    : location_(row_area, "Location"), size_(row_area, "Size"), radius_(row_area, "Radius X, Y"),
      offset_(row_area, "Offset"), length_(row_area, "Length"), degrees_(row_area, "Degrees"),
      dropper_color_({}, "Color", Color()) {
    std::ranges::transform(tool_option_table, std::back_inserter(options_), make_pane);
}

Tool_Option_Panes::~Tool_Option_Panes() = default;

int Tool_Option_Panes::place(Tool tool, Point position) {
    visible_options_.clear();
    const auto place_options = [&](Tool_Option_Place place) {
        for (std::size_t i = 0; i < tool_option_table.size(); ++i) {
            if (is_shown_for(tool, tool_option_table.at(i)) && tool_option_table.at(i).place == place) {
                visible_options_.push_back(i);
                position.y = options_.at(i)->place(position.x, position.y);
            }
        }
    };
    place_options(Tool_Option_Place::above_figures);
    visible_figures_ = figures_of(tool);
    if (row_of(tool).shows_location) {
        visible_figures_.insert(visible_figures_.begin(), &location_);
    }
    for (Pane* const figures : visible_figures_) {
        position.y = figures->place(position.x, position.y);
    }
    place_options(Tool_Option_Place::below_figures);
    return position.y;
}

// What the tool shows while it works.
std::vector<Pane*> Tool_Option_Panes::figures_of(Tool tool) {
    switch (tool) {
    case Tool::dropper: return {&dropper_color_};
    case Tool::line: return {&length_};
    case Tool::rectangle:
    case Tool::rectangle_selector: return {&size_};
    case Tool::ellipse:
    case Tool::circle_selector: return {&radius_};
    case Tool::scroll: return {&offset_};
    case Tool::rotate: return {&degrees_};
    case Tool::selection: return {&size_, &degrees_};
    default: return {};
    }
}

void Tool_Option_Panes::show(const Tool_Figures& figures) {
    location_.set_values({figures.location.x, figures.location.y});
    size_.set_values({figures.size.width, figures.size.height});
    radius_.set_values({figures.radii.x, figures.radii.y});
    offset_.set_values({figures.offset.x, figures.offset.y});
    length_.set_value(figures.length);
    degrees_.set_value(figures.degrees);
    dropper_color_.set_color(figures.dropper_color);
}

void Tool_Option_Panes::draw(const Tool_State& state) {
    show(state.figures);
    for (const Pane* const figures : visible_figures_) {
        figures->draw();
    }
    for (const std::size_t row : visible_options_) {
        options_.at(row)->show(tool_option_table.at(row).option.value(state.options));
        options_.at(row)->draw();
    }
}

bool Tool_Option_Panes::click(Point point, Tool_Options& options) {
    return std::ranges::any_of(visible_options_, [&](std::size_t row) {
        Dialog_Pane& pane = *options_.at(row);
        pane.show(tool_option_table.at(row).option.value(options));
        if (!pane.click(point)) {
            return false;
        }
        tool_option_table.at(row).option.choose(options, pane.value());
        return true;
    });
}

} // namespace quadrelle
