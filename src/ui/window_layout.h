#pragma once

// Where everything stands in the window, in its pixels. A pane's rectangle includes its title bar.

#include "base/geometry.h"

#include <array>

namespace quadrelle {

// The room between two elements that stand below each other.
constexpr int element_gap = 4;
constexpr int pane_title_height = 21;
constexpr int pane_border = 5;

// The part of a pane's rectangle that a pane is built with.
[[nodiscard]] constexpr Rectangle below_title(const Rectangle& pane) {
    return {pane.x, pane.y, pane.width, pane.height - pane_title_height};
}

[[nodiscard]] constexpr Point corner_of(const Rectangle& area) {
    return {area.x, area.y};
}

} // namespace quadrelle

namespace quadrelle::window_layout {

constexpr Size window{1232, 664};
// All panes but one are as wide as their columns.
constexpr int column_width = 202;
// A pane's height that holds so much below its title bar and within its border.
[[nodiscard]] constexpr int pane_height(int client_height) {
    return pane_title_height + client_height + 2 * pane_border;
}
// The panes that hold one row of text or controls.
constexpr int row_pane_height = pane_height(16);
// Where the columns on both sides of the canvas begin and end.
constexpr int columns_top = 32;
constexpr int columns_bottom = 632;

constexpr Rectangle menu_bar{0, 0, window.width, 25};

constexpr Rectangle preview{31, columns_top, column_width, pane_height(192)};
constexpr Rectangle magnification{31, 259, column_width, row_pane_height};
constexpr Rectangle navigation{31, 310, column_width, pane_height(23)};
constexpr Rectangle history{31, 368, 194, pane_height(24)};
constexpr Rectangle palette{31, 427, column_width, pane_height(99)};
constexpr Rectangle selected_color{31, palette.bottom() + element_gap, column_width, pane_height(40)};

constexpr Rectangle canvas{264, 64, 512, 512};
// Leaves room for an arrow at the canvas's right end.
constexpr Rectangle tabs{canvas.x, columns_top, 496, 21};
// What the tabs stand on: the rest down to the canvas.
constexpr Rectangle tab_rail{canvas.x, tabs.bottom(), canvas.width, canvas.y - tabs.bottom()};
constexpr Rectangle hint_lines{canvas.x, canvas.bottom() + element_gap, canvas.width, 52};
constexpr Rectangle tile_strip{4, 636, 51 * 24, 24};

constexpr Rectangle icon_bar{784, columns_top, 24, 563};
// The list, and the rows of the chosen tool over a part of it.
constexpr Rectangle tool_list{816, columns_top, column_width, columns_bottom - columns_top};

// The column at the right side shows one of three: the tool colours, the brush pad, or the copies.
constexpr Rectangle left_color{1026, columns_top, column_width, pane_height(36)};
constexpr Rectangle right_color{1026, left_color.bottom() + element_gap, column_width, pane_height(36)};
constexpr Rectangle hsv_selector{1026, right_color.bottom() + element_gap, column_width, pane_height(130)};
constexpr Rectangle handles{1026, hsv_selector.bottom() + element_gap, column_width, pane_height(104)};
constexpr Rectangle variations{1026, handles.bottom() + element_gap, column_width,
                               columns_bottom - handles.bottom() - element_gap};
constexpr Rectangle brush_pad{1023, columns_top, column_width, pane_height(521)};
constexpr Rectangle copies{1023, columns_top, column_width, columns_bottom - columns_top};

// The dialogs that change what the canvas and the preview show cover the panes right of the canvas instead.
constexpr Rectangle beside_canvas{784, 28, 444, columns_bottom - 28};

constexpr bool is_inside_window(const Rectangle& area) {
    return area.x >= 0 && area.y >= 0 && area.right() <= window.width && area.bottom() <= window.height;
}

constexpr bool overlap(const Rectangle& a, const Rectangle& b) {
    return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

template <std::size_t count>
constexpr bool fit_into_window(const std::array<Rectangle, count>& areas) {
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t other = 0; other < i; ++other) {
            if (overlap(areas[i], areas[other])) {
                return false;
            }
        }
        if (!is_inside_window(areas[i])) {
            return false;
        }
    }
    return true;
}

// What stands beside whatever column is shown at the right side.
template <typename... Areas>
constexpr bool fit_together(const Areas&... column) {
    return fit_into_window(std::array{menu_bar, preview, magnification, navigation, history, palette,
                                      selected_color, canvas, tabs, tab_rail, hint_lines, tile_strip,
                                      icon_bar, tool_list, column...});
}

static_assert(fit_together(left_color, right_color, hsv_selector, handles, variations));
static_assert(fit_together(brush_pad));
static_assert(fit_together(copies));
static_assert(fit_into_window(std::array{menu_bar, preview, canvas, hint_lines, tile_strip, beside_canvas}));
static_assert(selected_color.bottom() == columns_bottom && hint_lines.bottom() == columns_bottom);

} // namespace quadrelle::window_layout
