#include "ui/number_info.h"

#include "screen/screen.h"

namespace quadrelle {

Number_Info::Number_Info(const Rectangle& below_title, std::string_view title, std::string_view unit)
    : Pane(below_title, title), unit_(unit) {}

void Number_Info::draw() const {
    Pane::draw();
    screen->draw_text(Font::pane, {client_area().x, client_area().y - 1}, std::to_string(value_) + unit_);
}

} // namespace quadrelle
