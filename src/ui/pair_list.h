#pragma once

// A dialog item that lists pairs of texts, such as keys and what they do, in columns side by side.

#include "ui/dialog_item.h"

#include <string>
#include <vector>

namespace quadrelle {

struct Text_Pair {
    std::string first;
    std::string second;
};

class Pair_List : public Dialog_Item {
public:
    // All columns but the last one have the same number of rows.
    Pair_List(std::vector<Text_Pair> pairs, int columns, Font item_font = Font::pane);

    void draw() const override;

private:
    struct Column {
        std::size_t first_pair;
        std::size_t end;
        int x; // from the item's left edge
        int width;
        int second_x;
    };
    void add_column(std::size_t first_pair, std::size_t end);
    void draw_column(const Column& column) const;
    [[nodiscard]] int width_of(const Column& column, std::string Text_Pair::*text) const;

    std::vector<Text_Pair> pairs_;
    std::vector<Column> columns_;
    int row_step_ = 0;
};

} // namespace quadrelle
