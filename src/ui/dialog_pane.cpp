#include "ui/dialog_pane.h"

namespace quadrelle {

namespace {

constexpr int rows_rise = 2;

} // namespace

void Dialog_Pane::draw() const {
    Pane::draw();
    rows_.draw();
}

int Dialog_Pane::place(int x, int y) {
    move(x, y);
    const Rectangle client = client_area();
    rows_.stack({client.x, client.y - rows_rise}, Dialog_Rows::Extent::all);
    return area.bottom() + element_gap;
}

bool Dialog_Pane::click(Point point) {
    const Dialog_Event event = rows_.item_at(point);
    rows_.notify(event);
    return event.is_known();
}

int Dialog_Pane::value() const {
    const Dialog_Item* const control = rows_.item(control_id);
    return control == nullptr ? -1 : control->value();
}

void Dialog_Pane::show(int value) {
    if (Dialog_Item* const control = rows_.item(control_id)) {
        control->set_value(value);
    }
}

Number_Pane::Number_Pane(const Rectangle& below_title, std::string_view title, const Cyclic_Int& number)
    : Dialog_Pane(below_title, title) {
    rows().add_row(make_number_row(control_id, "", number, Font::pane));
}

Option_Pane::Option_Pane(const Rectangle& below_title, std::string_view title, std::string_view choices,
                         int index)
    : Dialog_Pane(below_title, title) {
    rows().add_row(make_choice_row(control_id, choices, index, Font::pane));
}

Tick_Pane::Tick_Pane(const Rectangle& below_title, std::string_view title, std::string_view text)
    : Dialog_Pane(below_title, title) {
    rows().add_row(make_tick_row(control_id, text, Tick::off, Font::pane));
}

} // namespace quadrelle
