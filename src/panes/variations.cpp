#include "panes/variations.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "ui/control.h"
#include "ui/swatch.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quadrelle {

namespace {

constexpr std::array<std::string_view, ramp_kind_count> labels{"Lightness", "Saturation", "Hue",
                                                               "Cool to warm"};

constexpr int cell_edge = 16;
constexpr int hatch_step = 4;
constexpr int label_height = 14;
constexpr int row_step = 31;
constexpr int label_y = -3; // the letters begin five pixels below their position

bool varies(const Color_Ramp& ramp) {
    return std::ranges::any_of(ramp.colors, [&](Color color) { return color != ramp.colors.front(); });
}

// Its own place first: greys and black may stand at several.
std::optional<int> place_of(Color color, const Color_Ramp& ramp) {
    if (ramp.colors.at(static_cast<std::size_t>(ramp.own)) == color) {
        return ramp.own;
    }
    const auto* const found = std::ranges::find(ramp.colors, color);
    return found == ramp.colors.end() ? std::nullopt
                                      : std::optional(static_cast<int>(found - ramp.colors.begin()));
}

} // namespace

Color_Variations::Color_Variations(const Rectangle& below_title)
    : Pane(below_title, "Variations"),
      image_({ramp_size * cell_edge, (ramp_kind_count - 1) * row_step + cell_edge}) {
    for (int row = 0; row < ramp_kind_count; ++row) {
        ramps_.at(static_cast<std::size_t>(row)) =
            make_ramp(static_cast<Ramp_Kind>(row), color_, last_with_hue_);
    }
    paint_ramps();
}

Rectangle Color_Variations::cell(int row, int column) const {
    const Rectangle client = client_area();
    return {client.x + column * cell_edge, client.y + label_height + row * row_step, cell_edge, cell_edge};
}

void Color_Variations::set_color(Color color) {
    if (color == color_) {
        return;
    }
    color_ = color;
    if (!color.is_grey()) {
        last_with_hue_ = color;
    }
    for (int row = 0; row < ramp_kind_count; ++row) {
        Color_Ramp& ramp = ramps_.at(static_cast<std::size_t>(row));
        if (const std::optional<int> place = place_of(color, ramp)) {
            ramp.own = *place;
        } else {
            ramp = make_ramp(static_cast<Ramp_Kind>(row), color_, last_with_hue_);
        }
    }
    paint_ramps();
}

void Color_Variations::paint_ramps() {
    image_.fill_rect({0, 0, image_.size().width, image_.size().height},
                     standard_color(Standard_Color::pane_background));
    for (int row = 0; row < ramp_kind_count; ++row) {
        Rectangle swatch{0, row * row_step, cell_edge, cell_edge};
        for (const Color color : ramps_.at(static_cast<std::size_t>(row)).colors) {
            image_.fill_checkers(swatch);
            image_.fill_rect(swatch, color);
            swatch.x += cell_edge;
        }
        if (!varies(ramps_.at(static_cast<std::size_t>(row)))) {
            hatch({0, row * row_step, ramp_size * cell_edge, cell_edge});
        }
    }
    image_.upload();
}

// A ramp of one colour offers nothing to choose.
void Color_Variations::hatch(const Rectangle& ramp) {
    for (int y = 0; y < ramp.height; ++y) {
        for (int x = y % hatch_step; x < ramp.width; x += hatch_step) {
            image_.fill_rect({ramp.x + x, ramp.y + ramp.height - 1 - y, 1, 1},
                             standard_color(Standard_Color::pane_background));
        }
    }
}

void Color_Variations::draw() const {
    const Rectangle first = cell(0, 0);
    draw_around({first.x, first.y, image_.size().width, image_.size().height});
    image_.draw_at({first.x, first.y});
    for (int row = 0; row < ramp_kind_count; ++row) {
        const auto index = static_cast<std::size_t>(row);
        const int label_top = cell(row, 0).y - label_height;
        screen->draw_text(Font::pane, {first.x, label_top + label_y}, labels.at(index));
        draw_cell_mark(cell(row, ramps_.at(index).own));
        for (int column = 0; is_pointed_at(client_area()) && column < ramp_size; ++column) {
            draw_outlined_answer(cell(row, column));
        }
    }
}

std::optional<Color> Color_Variations::click(Point point) const {
    for (int row = 0; row < ramp_kind_count; ++row) {
        const Color_Ramp& ramp = ramps_.at(static_cast<std::size_t>(row));
        for (int column = 0; column < ramp_size; ++column) {
            if (cell(row, column).contains(point)) {
                return ramp.colors.at(static_cast<std::size_t>(column));
            }
        }
    }
    return std::nullopt;
}

} // namespace quadrelle
