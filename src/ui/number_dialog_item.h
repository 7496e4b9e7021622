#pragma once

// A number between two bounds that is stepped by other items or typed after a click.

#include "base/cyclic_int.h"
#include "ui/dialog_item.h"

namespace quadrelle {

class Number_Dialog_Item : public Dialog_Item {
public:
    Number_Dialog_Item(Item_Id ids, const Cyclic_Int& number, Font item_font = Font::regular);

    [[nodiscard]] int value() const override { return number_.value(); }
    [[nodiscard]] bool has_step(Dialog_Event_Kind kind) const override { return can_step(number_, kind); }
    [[nodiscard]] bool is_stepped_on() const override { return true; }
    void measure() override;
    Dialog_Event click(Point point) override;
    void notify(Dialog_Event_Kind kind) override;
    [[nodiscard]] bool changes_by(Dialog_Event_Kind kind) const override {
        return stepped(kind).value() != value();
    }
    void draw() const override;
    void begin() override { saved = number_.value(); }
    void revert() override;
    void save(Data_Stream& stream) const override;
    // The dialog's own bounds hold whatever the file says; a value outside of them is not taken.
    void load(Data_Stream& stream) override;

private:
    void set(int value);

    [[nodiscard]] Cyclic_Int stepped(Dialog_Event_Kind kind) const;

    Cyclic_Int number_;
};

} // namespace quadrelle
