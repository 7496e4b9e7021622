#include "views/options_dialog.h"

#include "screen/sprite_sheet.h"

namespace quadrelle {

namespace {

const Option_Row& row_of(Option option) {
    return option_table.at(static_cast<std::size_t>(option));
}

constexpr int control_id(const Option_Row& row) {
    return row.kind == Option_Kind::tick ? row.row_id : row.row_id + 1;
}

// The texts of all rows begin at one place: that of a tick behind as much room as the second button takes.
Dialog_Row make_indented_tick_row(const Option_Row& row) {
    Dialog_Row tick = make_tick_row(control_id(row), row.text, row.initial == 1 ? Tick::on : Tick::off);
    tick.indent = sprite_rect(Sprite::button_more).width + item_gap;
    return tick;
}

Dialog_Row make_row(const Option_Row& row) {
    switch (row.kind) {
    case Option_Kind::choice: return make_choice_row(control_id(row), row.text, row.initial);
    case Option_Kind::tick: return make_indented_tick_row(row);
    case Option_Kind::number: break;
    }
    return make_number_row(control_id(row), row.text, {row.initial, row.low, row.high});
}

} // namespace

Options_Dialog::Options_Dialog() : dialog_("Options", "options.dlg") {
    for (const Option_Row& row : option_table) {
        dialog_.add_row(make_row(row));
    }
    dialog_.finish_ok_cancel();
}

int Options_Dialog::shown(Option option) const {
    return dialog_.value(control_id(row_of(option))) + row_of(option).offset;
}

Dialog_Item& Options_Dialog::control(Option option) {
    return *dialog_.item(control_id(row_of(option)));
}

} // namespace quadrelle
