#include "panes/tool_options.h"

#include <algorithm>
#include <span>

namespace quadrelle {

namespace {

constexpr Rectangle row_area{0, 0, 202, 26};

std::unique_ptr<Dialog_Pane> make_pane(const Tool_Option_Row& row) {
    if (row.kind == Tool_Option_Kind::tick) {
        return std::make_unique<Tick_Pane>(row_area, row.label, row.text);
    }
    return std::make_unique<Option_Pane>(row_area, row.label, row.text, row.initial);
}

constexpr std::array pen_rows = {Tool_Option::right_button_mode};
constexpr std::array lightness_rows = {Tool_Option::button_order, Tool_Option::lightness_mode,
                                       Tool_Option::speed, Tool_Option::size_compensation};
constexpr std::array colorize_rows = {Tool_Option::right_button_mode, Tool_Option::colorize_type};
constexpr std::array dropper_rows = {Tool_Option::dropper_return};
constexpr std::array fill_rows = {Tool_Option::fill_mode};
constexpr std::array wand_rows = {Tool_Option::wand_mode};
constexpr std::array scroll_rows = {Tool_Option::scroll_move};
constexpr std::array selection_rows = {Tool_Option::selection_mode};
constexpr std::array stamp_rows = {Tool_Option::stamp_mode};

// What stands at the end of a tool's column, from the top.
std::span<const Tool_Option> last_rows(Tool tool) {
    switch (tool) {
    case Tool::pen: return pen_rows;
    case Tool::lightness_pen: return lightness_rows;
    case Tool::colorize_pen: return colorize_rows;
    case Tool::dropper: return dropper_rows;
    case Tool::flood_fill: return fill_rows;
    case Tool::wand_selector: return wand_rows;
    case Tool::stamp_brush: return stamp_rows;
    case Tool::scroll: return scroll_rows;
    case Tool::selection: return selection_rows;
    default: return {};
    }
}

} // namespace

Tool_Options::Tool_Options()
    : location_(row_area, "Location"), size_(row_area, "Size"), radius_(row_area, "Radius X, Y"),
      offset_(row_area, "Offset"), length_(row_area, "Length"), degrees_(row_area, "Degrees"),
      dropper_color_({}, "Color", Color()) {
    std::ranges::transform(tool_option_table, panes_.begin(), make_pane);
}

Tool_Options::~Tool_Options() = default;

Dialog_Pane& Tool_Options::pane(Tool_Option option) const {
    return *panes_.at(static_cast<std::size_t>(option));
}

int Tool_Options::value(Tool_Option option) const {
    return pane(option).value();
}

void Tool_Options::set_value(Tool_Option option, int value) {
    static_cast<Option_Pane&>(pane(option)).choose(value);
}

int Tool_Options::place(Pane& row, Point position) {
    visible_.push_back(&row);
    return row.place(position.x, position.y);
}

int Tool_Options::place_first(Tool tool, Point position) {
    visible_.clear();
    visible_options_.clear();
    for (const Tool_Option option : {Tool_Option::rectangle_type, Tool_Option::ellipse_type}) {
        const Tool owner = option == Tool_Option::rectangle_type ? Tool::rectangle : Tool::ellipse;
        if (tool == owner) {
            visible_options_.push_back(&pane(option));
            position.y = place(pane(option), position);
        }
    }
    return position.y;
}

int Tool_Options::place_rest(Tool tool, Point position) {
    if (tool == Tool::pen) {
        visible_options_.push_back(&pane(Tool_Option::pen_mode));
        position.y = place(pane(Tool_Option::pen_mode), position);
    }
    if (row_of(tool).shows_location) {
        position.y = place(location_, position);
    }
    if (Pane* const figures = figures_of(tool)) {
        position.y = place(*figures, position);
    }
    for (const Tool_Option option : last_rows(tool)) {
        visible_options_.push_back(&pane(option));
        position.y = place(pane(option), position);
    }
    return position.y;
}

// What the tool shows while it works.
Pane* Tool_Options::figures_of(Tool tool) {
    switch (tool) {
    case Tool::dropper: return &dropper_color_;
    case Tool::line: return &length_;
    case Tool::rectangle:
    case Tool::rectangle_selector: return &size_;
    case Tool::ellipse:
    case Tool::circle_selector: return &radius_;
    case Tool::scroll: return &offset_;
    case Tool::rotate: return &degrees_;
    default: return nullptr;
    }
}

void Tool_Options::draw() const {
    for (const Pane* row : visible_) {
        row->draw();
    }
}

bool Tool_Options::click(Point point) {
    return std::ranges::any_of(visible_options_, [point](Dialog_Pane* row) { return row->click(point); });
}

} // namespace quadrelle
