#include "ui/options.h"

#include "ui/dialog_container.h"

namespace quadrelle {

std::unique_ptr<Options> options;

namespace {

constexpr int control_id(const Option_Row& row) {
    return row.kind == Option_Kind::tick ? row.row_id : row.row_id + 1;
}

Dialog_Row make_row(const Option_Row& row) {
    switch (row.kind) {
    case Option_Kind::choice: return make_choice_row(control_id(row), row.text, row.initial);
    case Option_Kind::tick:
        return make_tick_row(control_id(row), row.text, row.initial == 1 ? Tick::on : Tick::off);
    case Option_Kind::number: break;
    }
    return make_number_row(control_id(row), row.text, {row.initial, row.low, row.high});
}

} // namespace

Options::Options() : dialog_(std::make_unique<Dialog_Container>("Options", "options.dlg")) {
    for (const Option_Row& row : option_table) {
        dialog_->add_row(make_row(row));
    }
    dialog_->finish_ok_cancel();
}

Options::~Options() = default;

void Options::load() {
    for (const Option_Row& row : option_table) {
        values_.at(static_cast<std::size_t>(row.id)) = dialog_->value(control_id(row)) + row.offset;
    }
}

bool Options::edit() {
    const bool is_accepted = dialog_->run();
    if (is_accepted) {
        load();
    }
    return is_accepted;
}

} // namespace quadrelle
