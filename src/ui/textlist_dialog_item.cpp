#include "ui/textlist_dialog_item.h"

#include "base/data_stream.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"

#include <algorithm>
#include <stdexcept>

namespace quadrelle {

std::vector<std::string> parse_choices(std::string_view choices) {
    const std::size_t end = choices.find('$');
    if (end == std::string_view::npos) {
        throw std::invalid_argument("a list of choices without its end");
    }
    std::vector<std::string> entries(1);
    for (std::size_t i = 0; i < end; ++i) {
        if (choices[i] == ',' && !entries.back().empty()) {
            entries.emplace_back();
        } else {
            entries.back() += choices[i];
        }
    }
    return entries;
}

Textlist_Dialog_Item::Textlist_Dialog_Item(Item_Id ids, std::string_view choices, int index, Font item_font)
    : Dialog_Item(ids, item_font), entries_(parse_choices(choices)),
      index_(index, 0, static_cast<std::int32_t>(entries_.size()) - 1) {
    area.height = line_height(font);
    Textlist_Dialog_Item::measure();
}

void Textlist_Dialog_Item::measure() {
    area.width = 0;
    for (const std::string& entry : entries_) {
        area.width = std::max(area.width, screen->text_width(font, entry));
    }
}

void Textlist_Dialog_Item::set_value(int value) {
    if (index_.allows(value)) {
        index_.set(value);
    }
}

void Textlist_Dialog_Item::notify(Dialog_Event_Kind kind) {
    index_ = stepped(kind);
}

Cyclic_Int Textlist_Dialog_Item::stepped(Dialog_Event_Kind kind) const {
    Cyclic_Int index = index_;
    if (kind == Dialog_Event_Kind::increase) {
        index.increase();
    } else if (kind == Dialog_Event_Kind::decrease) {
        index.decrease();
    }
    return index;
}

void Textlist_Dialog_Item::draw() const {
    screen->draw_text(font, {area.x, area.y}, entries_.at(static_cast<std::size_t>(index_.value())));
}

void Textlist_Dialog_Item::save(Data_Stream& stream) const {
    stream.write_int(index_.value());
    stream.write_int(index_.low());
    stream.write_int(index_.high());
}

void Textlist_Dialog_Item::load(Data_Stream& stream) {
    const int loaded = stream.read_int();
    static_cast<void>(stream.read_pair());
    set_value(loaded);
}

} // namespace quadrelle
