#pragma once

// Where everything of the map editor stands. It covers the whole window.

#include "ui/window_layout.h"

namespace quadrelle::map_layout {

constexpr int margin = 4;
constexpr int button_height = 27;
constexpr Rectangle buttons{margin, margin, window_layout::window.width - 2 * margin, button_height};
constexpr int panes_top = buttons.bottom() + element_gap;
constexpr int panes_height = 580;

constexpr int list_columns = 6;
constexpr int list_rows = 14;
constexpr int list_cell = 32;
constexpr int tiles_width = list_columns * list_cell + 2 * pane_border;
constexpr Rectangle tiles{window_layout::window.width - margin - tiles_width, panes_top, tiles_width,
                          panes_height};
constexpr Rectangle list{tiles.x + pane_border, tiles.y + pane_title_height + pane_border,
                         list_columns* list_cell, list_rows* list_cell};
constexpr Point info{list.x, list.bottom() + 8};

constexpr Rectangle map{margin, panes_top, tiles.x - 2 * margin, panes_height};
constexpr Rectangle view{map.x + pane_border, map.y + pane_title_height + pane_border,
                         map.width - 2 * pane_border, map.height - pane_title_height - 2 * pane_border};

constexpr Rectangle hint{margin + pane_border, map.bottom() + element_gap,
                         window_layout::window.width - 2 * (margin + pane_border),
                         window_layout::window.height - map.bottom() - element_gap};

static_assert(window_layout::fit_into_window(std::array{buttons, tiles, map, hint}));
static_assert(tiles.encloses(list));

} // namespace quadrelle::map_layout
