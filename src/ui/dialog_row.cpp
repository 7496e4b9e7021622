#include "ui/dialog_row.h"

#include "ui/button_dialog_item.h"
#include "ui/number_dialog_item.h"
#include "ui/text_dialog.h"
#include "ui/textlist_dialog_item.h"

#include <algorithm>

namespace quadrelle {

void Dialog_Row::place(Point position) {
    area.x = position.x;
    area.y = position.y;
    position.x += indent;
    for (const auto& item : items_) {
        item->set_position(position);
        item->measure();
        position.x += item->area.width + item_gap;
    }
    measure();
}

void Dialog_Row::measure() {
    area.width = indent + std::max(static_cast<int>(items_.size()) - 1, 0) * item_gap;
    area.height = 0;
    for (const auto& item : items_) {
        area.width += item->area.width;
        area.height = std::max(area.height, item->area.height);
    }
}

Dialog_Event Dialog_Row::click(Point point) {
    for (const auto& item : items_) {
        const Dialog_Event answer = item->click(point);
        if (answer.is_known()) {
            return answer;
        }
    }
    return {};
}

void Dialog_Row::draw() const {
    for (const auto& each : items_) {
        each->usable = usable_if(is_usable(*each));
        each->draw();
    }
}

bool Dialog_Row::is_usable(const Dialog_Item& stepping) const {
    const Dialog_Item* const stepped = stepping.host == no_id ? nullptr : item(stepping.host);
    return stepped == nullptr || stepped->changes_by(stepping.event());
}

Dialog_Item* Dialog_Row::item(int id) const {
    const auto found = std::ranges::find_if(items_, [id](const auto& item) { return item->id == id; });
    return found == items_.end() ? nullptr : found->get();
}

namespace {

void add_steppers(Dialog_Row& row, int control_id, Font font) {
    row.add<Button_Dialog_Item>(Item_Id{no_id, control_id}, Button_Type::less, font);
    row.add<Button_Dialog_Item>(Item_Id{no_id, control_id}, Button_Type::more, font);
}

} // namespace

Dialog_Row make_choice_row(int control_id, std::string_view choices, int index, Font font) {
    Dialog_Row row;
    add_steppers(row, control_id, font);
    row.add<Textlist_Dialog_Item>(Item_Id{control_id}, choices, index, font);
    return row;
}

Dialog_Row make_number_row(int control_id, std::string_view label, const Cyclic_Int& number, Font font) {
    Dialog_Row row;
    add_steppers(row, control_id, font);
    if (!label.empty()) {
        row.add<Text_Dialog>(Item_Id{control_id - 1, control_id}, label, font);
    }
    row.add<Number_Dialog_Item>(Item_Id{control_id}, number, font);
    return row;
}

Dialog_Row make_tick_row(int control_id, std::string_view text, Tick tick, Font font) {
    Dialog_Row row;
    row.add<Radiobutton_Dialog_Item>(Item_Id{control_id}, tick == Tick::on, font);
    row.add<Text_Dialog>(Item_Id{}, text, font);
    return row;
}

} // namespace quadrelle
