#include "ui/button_dialog_item.h"

#include "base/data_stream.h"
#include "screen/screen.h"
#include "ui/text_button.h"

namespace quadrelle {

namespace {

constexpr int drop = 2;
constexpr int label_drop = 3;

constexpr bool stands_high(Button_Type type) {
    return type == Button_Type::ok || type == Button_Type::cancel || type == Button_Type::left ||
           type == Button_Type::right || type == Button_Type::overwrite;
}

} // namespace

Button_Dialog_Item::Button_Dialog_Item(Item_Id ids, Button_Type type, Font item_font)
    : Dialog_Item(ids, item_font), type_(type) {
    area.width = row().size().width;
    area.height = row().size().height;
}

Dialog_Event Button_Dialog_Item::click(Point point) {
    return area.contains(point) ? Dialog_Event{row().event, host} : Dialog_Event{};
}

void Button_Dialog_Item::set_position(Point position) {
    Dialog_Item::set_position({position.x, position.y + (stands_high(type_) ? 0 : drop)});
}

void Button_Dialog_Item::draw() const {
    if (row().has_sprite()) {
        screen->draw_sprite(row().sprite, {area.x, area.y});
        draw_answer(area, usable);
        return;
    }
    draw_button(area, {font, row().label, label_drop}, usable);
    if (event() == Dialog_Event_Kind::accept) {
        draw_default_mark(area);
    }
}

void Button_Dialog_Item::save(Data_Stream& stream) const {
    stream.write_int(static_cast<std::int32_t>(type_));
}

void Button_Dialog_Item::load(Data_Stream& stream) {
    static_cast<void>(stream.read_int());
}

Radiobutton_Dialog_Item::Radiobutton_Dialog_Item(Item_Id ids, bool is_checked, Font item_font)
    : Button_Dialog_Item(ids, is_checked ? Button_Type::radio_check : Button_Type::radio_uncheck, item_font) {
}

void Radiobutton_Dialog_Item::set_value(int value) {
    if (value == 0 || value == 1) {
        type_ = value == 1 ? Button_Type::radio_check : Button_Type::radio_uncheck;
    }
}

Dialog_Event Radiobutton_Dialog_Item::click(Point point) {
    if (!area.contains(point)) {
        return {};
    }
    set_value(1 - value());
    return {Dialog_Event_Kind::radio};
}

void Radiobutton_Dialog_Item::load(Data_Stream& stream) {
    const auto loaded = static_cast<Button_Type>(stream.read_int());
    if (loaded == Button_Type::radio_check || loaded == Button_Type::radio_uncheck) {
        type_ = loaded;
    }
}

} // namespace quadrelle
