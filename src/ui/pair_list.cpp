#include "ui/pair_list.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int inset = 4;
constexpr int gap_in_pair = 8;
constexpr int column_gap = 8;
constexpr int row_gap = 1;
// What the rest of a dialog takes of the window's height, and a little more.
constexpr int height_around = 80;

// Rows stand closer where they would not fit into the window otherwise.
int fitting_row_step(Font font, int rows) {
    const int room = (screen->size().height - height_around) / std::max(rows, 1);
    return std::min(line_height(font) + row_gap, room);
}

} // namespace

Pair_List::Pair_List(std::vector<Text_Pair> pairs, int columns, Font item_font)
    : Dialog_Item({}, item_font), pairs_(std::move(pairs)) {
    const auto count = static_cast<std::size_t>(std::max(columns, 1));
    const std::size_t rows = (pairs_.size() + count - 1) / count;
    for (std::size_t first = 0; first < pairs_.size(); first += rows) {
        add_column(first, std::min(first + rows, pairs_.size()));
    }
    row_step_ = fitting_row_step(font, static_cast<int>(rows));
    area.height = static_cast<int>(rows) * row_step_;
}

void Pair_List::add_column(std::size_t first_pair, std::size_t end) {
    Column column{first_pair, end, columns_.empty() ? 0 : area.width + column_gap, 0, 0};
    column.second_x = column.x + inset + width_of(column, &Text_Pair::first) + gap_in_pair;
    area.width = column.second_x + inset + width_of(column, &Text_Pair::second) + inset;
    column.width = area.width - column.x;
    columns_.push_back(column);
}

int Pair_List::width_of(const Column& column, std::string Text_Pair::*text) const {
    int width = 0;
    for (std::size_t i = column.first_pair; i < column.end; ++i) {
        width = std::max(width, screen->text_width(font, pairs_[i].*text));
    }
    return width;
}

void Pair_List::draw() const {
    for (const Column& column : columns_) {
        draw_column(column);
    }
}

// The letters may reach into the row below: they are drawn when all rows stand.
void Pair_List::draw_column(const Column& column) const {
    const int first_width = column.second_x - gap_in_pair / 2 - column.x;
    const int height = row_step_ - row_gap;
    const int rise = (line_height(font) - height) / 2;
    const int x = area.x + column.x;
    const int rows = static_cast<int>(column.end - column.first_pair);
    for (int row = 0; row < rows; ++row) {
        const int y = area.y + row * row_step_;
        screen->fill_rect({x, y, first_width, height}, standard_color(Standard_Color::list_passive));
        screen->fill_rect({x + first_width + 1, y, column.width - first_width - 1, height},
                          standard_color(Standard_Color::pane_frame));
    }
    for (int row = 0; row < rows; ++row) {
        const int y = area.y + row * row_step_ - rise;
        const Text_Pair& pair = pairs_[column.first_pair + static_cast<std::size_t>(row)];
        screen->draw_text(font, {x + inset, y}, pair.first);
        screen->draw_text(font, {area.x + column.second_x + inset, y}, pair.second);
    }
}

} // namespace quadrelle
