#include "views/map_tile_list.h"

#include "base/fitting.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "tileset/tileset.h"
#include "ui/checkerboard.h"
#include "views/map_layout.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace quadrelle {

namespace {

using namespace map_layout;

constexpr int cells_in_view = list_columns * list_rows;
constexpr int number_height = 14;

// The top right corner of its ground is given.
void draw_number(std::string_view text, Point corner) {
    const int width = screen->text_width(Font::pane, text) + 2;
    screen->fill_rect({corner.x - width, corner.y, width, number_height}, {0, 0, 0, 170});
    screen->draw_text(Font::pane, {corner.x - width + 1, corner.y - 3}, text);
}

// As a cell of the list has room for it.
std::string short_number(int number) {
    constexpr int thousand = 1000;
    return number < thousand              ? std::to_string(number)
           : number < thousand * thousand ? std::to_string(number / thousand) + "k"
                                          : "1M";
}

} // namespace

Map_Tile_List::Map_Tile_List(const Tileset& tileset)
    : tileset_(tileset), pane_(below_title(tiles), "Tiles"), shown_(cells_in_view) {}

int Map_Tile_List::tile_at(Point point) const {
    if (!list.contains(point)) {
        return -1;
    }
    const int column = (point.x - list.x) / list_cell;
    const int row = (point.y - list.y) / list_cell;
    const int tile = (first_row_ + row) * list_columns + column;
    return tile < tileset_.count() ? tile : -1;
}

Size Map_Tile_List::rectangle_between(int tile, int other, std::vector<int>& chosen) const {
    const auto [left, right] = std::minmax({tile % list_columns, other % list_columns});
    const auto [top, bottom] = std::minmax({tile / list_columns, other / list_columns});
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            const int index = row * list_columns + column;
            chosen.push_back(index < tileset_.count() ? index : -1);
        }
    }
    return {right - left + 1, bottom - top + 1};
}

int Map_Tile_List::scroll_to(int row) {
    const int rows = (tileset_.count() + list_columns - 1) / list_columns;
    first_row_ = std::clamp(row, 0, std::max(rows - list_rows, 0));
    return first_row_;
}

void Map_Tile_List::bring_into_view(int tile) {
    const int row = tile / list_columns;
    scroll_to(std::clamp(first_row_, row - list_rows + 1, row));
}

Rectangle Map_Tile_List::cell_of(int tile) const {
    const int cell = tile - first_row_ * list_columns;
    return {list.x + cell % list_columns * list_cell, list.y + cell / list_columns * list_cell, list_cell,
            list_cell};
}

void Map_Tile_List::draw(const std::function<Listed_Tile(int tile)>& look_of, std::string_view text_below) {
    pane_.draw();
    screen->fill_rect(list, standard_color(Standard_Color::dark_frame));
    const int first = first_row_ * list_columns;
    const int end = std::min(tileset_.count(), first + cells_in_view);
    const Size shown = fitted(tileset_.tile_size(), {list_cell - 2, list_cell - 2});
    for (int tile = first; tile < end; ++tile) {
        const Rectangle cell = cell_of(tile);
        draw_checkerboard(cell);
        shown_[static_cast<std::size_t>(tile - first)].draw(tileset_.tile_at(tile), centred(shown, cell));
        draw_look(look_of(tile), cell);
    }
    screen->draw_text(Font::pane, info, text_below);
}

void Map_Tile_List::draw_look(const Listed_Tile& look, const Rectangle& cell) {
    if (look.weight > 0) {
        screen->draw_outline(cell, standard_color(Standard_Color::black));
        screen->draw_outline(cell.inset(1), standard_color(Standard_Color::highlight));
    }
    if (look.weight > 1) {
        draw_number(std::to_string(look.weight), {cell.right() - 2, cell.y + 2});
    }
    if (look.uses) {
        draw_number(short_number(*look.uses), {cell.right() - 2, cell.bottom() - 2 - number_height});
    }
}

} // namespace quadrelle
