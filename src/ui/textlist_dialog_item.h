#pragma once

// One text out of a list, stepped through by other items.

#include "base/cyclic_int.h"
#include "ui/dialog_item.h"

#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

// "a,b,c$" gives three entries. The first character of an entry is always taken, even a comma. Throws
// std::invalid_argument for a text without "$".
[[nodiscard]] std::vector<std::string> parse_choices(std::string_view choices);

class Textlist_Dialog_Item : public Dialog_Item {
public:
    Textlist_Dialog_Item(Item_Id ids, std::string_view choices, int index, Font item_font = Font::regular);

    [[nodiscard]] int value() const override { return index_.value(); }
    void set_value(int value) override;
    [[nodiscard]] bool has_step(Dialog_Event_Kind kind) const override { return can_step(index_, kind); }
    [[nodiscard]] const std::vector<std::string>& entries() const { return entries_; }
    // Makes the item as wide as the widest entry.
    void measure() override;
    void notify(Dialog_Event_Kind kind) override;
    [[nodiscard]] bool changes_by(Dialog_Event_Kind kind) const override {
        return stepped(kind).value() != value();
    }
    void draw() const override;
    void begin() override { saved = index_.value(); }
    void revert() override { index_.set(saved); }
    void save(Data_Stream& stream) const override;
    // Takes no index that has no entry, and never the file's bounds.
    void load(Data_Stream& stream) override;

private:
    [[nodiscard]] Cyclic_Int stepped(Dialog_Event_Kind kind) const;

    std::vector<std::string> entries_;
    Cyclic_Int index_;
};

} // namespace quadrelle
