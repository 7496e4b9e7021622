#pragma once

// Rows of dialog items below each other, wherever they are shown.

#include "ui/dialog_row.h"

#include <vector>

namespace quadrelle {

class Data_Stream;

class Dialog_Rows {
public:
    enum class Extent { all, all_but_last };

    Dialog_Row& add_row(Dialog_Row row);
    // Places the rows downwards without gaps.
    void stack(Point position, Extent extent);
    void draw() const;

    // Returns the answer of the first row that contains the point. An item may change, or ask for a number.
    Dialog_Event item_at(Point point);
    // Increases or decreases the number or choice under the point, also by what belongs to it in its row. It
    // stops at the bounds.
    void step_at(Point point, Dialog_Event_Kind kind);
    // Returns the item there without a click, or null.
    [[nodiscard]] const Dialog_Item* item_under(Point point) const;
    // Returns the first item with that id, or null.
    [[nodiscard]] Dialog_Item* item(int id) const;
    // Passes the event on to the item that it is meant for, if there is one.
    void notify(const Dialog_Event& event);

    void begin();
    void revert();
    // A file is read by position: what the rows of today do not have is skipped.
    void save(Data_Stream& stream) const;
    void load(Data_Stream& stream);

    [[nodiscard]] std::vector<Dialog_Row>& rows() { return rows_; }
    [[nodiscard]] const std::vector<Dialog_Row>& rows() const { return rows_; }

private:
    std::vector<Dialog_Row> rows_;
};

} // namespace quadrelle
