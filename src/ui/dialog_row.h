#pragma once

// Dialog items from left to right, and the rows that dialogs are commonly made of.

#include "base/cyclic_int.h"
#include "ui/dialog_item.h"

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace quadrelle {

constexpr int item_gap = 7;

class Dialog_Row {
public:
    template <typename Item, typename... Arguments>
    Item& add(Arguments&&... arguments) {
        auto item = std::make_unique<Item>(std::forward<Arguments>(arguments)...);
        Item& added = *item;
        items_.push_back(std::move(item));
        return added;
    }

    // Positions the items from there on, and measures.
    void place(Point position);
    // Makes the area as wide as the items with the gaps between them, and as high as the highest.
    void measure();
    // Returns the first known answer of an item, in order.
    Dialog_Event click(Point point);
    // A step that leads nowhere is shown as one that cannot be made.
    void draw() const;

    // Returns the first item with that id, or null.
    [[nodiscard]] Dialog_Item* item(int id) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Dialog_Item>>& items() const { return items_; }

    Rectangle area;
    int indent = 0; // of the first item

private:
    [[nodiscard]] bool is_usable(const Dialog_Item& stepping) const;

    std::vector<std::unique_ptr<Dialog_Item>> items_;
};

enum class Tick { off, on };

// The control of each of these rows has the id given; nothing else in them has one but a number's label.
// "Less" and "More" stand before what they change, whose width may vary.
[[nodiscard]] Dialog_Row make_choice_row(int control_id, std::string_view choices, int index,
                                         Font font = Font::regular);
// The label has the id before the control's.
[[nodiscard]] Dialog_Row make_number_row(int control_id, std::string_view label, const Cyclic_Int& number,
                                         Font font = Font::regular);
[[nodiscard]] Dialog_Row make_tick_row(int control_id, std::string_view text, Tick tick,
                                       Font font = Font::regular);

} // namespace quadrelle
