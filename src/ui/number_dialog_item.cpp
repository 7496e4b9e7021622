#include "ui/number_dialog_item.h"

#include "base/data_stream.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/control.h"
#include "ui/number_prompt.h"

#include <optional>
#include <string>

namespace quadrelle {

Number_Dialog_Item::Number_Dialog_Item(Item_Id ids, const Cyclic_Int& number, Font item_font)
    : Dialog_Item(ids, item_font), number_(number) {
    area.height = line_height(font);
    Number_Dialog_Item::measure();
}

void Number_Dialog_Item::measure() {
    area.width = screen->text_width(font, std::to_string(value()));
}

Dialog_Event Number_Dialog_Item::click(Point point) {
    if (!area.contains(point)) {
        return {};
    }
    const std::optional<int> typed = ask_number(point, number_.value(), number_.low(), number_.high());
    if (!typed) {
        return {};
    }
    set(*typed);
    return {Dialog_Event_Kind::self};
}

void Number_Dialog_Item::notify(Dialog_Event_Kind kind) {
    number_ = stepped(kind);
    measure();
}

Cyclic_Int Number_Dialog_Item::stepped(Dialog_Event_Kind kind) const {
    Cyclic_Int number = number_;
    if (kind == Dialog_Event_Kind::increase) {
        number.increase();
    } else if (kind == Dialog_Event_Kind::decrease) {
        number.decrease();
    }
    return number;
}

void Number_Dialog_Item::draw() const {
    screen->draw_text(font, {area.x, area.y}, std::to_string(value()));
    draw_answer(area);
}

void Number_Dialog_Item::revert() {
    set(saved);
}

void Number_Dialog_Item::save(Data_Stream& stream) const {
    stream.write_int(number_.value());
    stream.write_int(number_.low());
    stream.write_int(number_.high());
}

void Number_Dialog_Item::load(Data_Stream& stream) {
    const int loaded = stream.read_int();
    static_cast<void>(stream.read_pair());
    if (number_.allows(loaded)) {
        set(loaded);
    }
}

void Number_Dialog_Item::set(int value) {
    number_.set(value);
    measure();
}

} // namespace quadrelle
