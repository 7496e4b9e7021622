#include "ui/location_info.h"

#include "screen/screen.h"

#include <string>

namespace quadrelle {

Location_Info::Location_Info(const Rectangle& below_title, std::string_view title)
    : Pane(below_title, title) {}

void Location_Info::draw() const {
    Pane::draw();
    screen->draw_text(Font::pane, {client_area().x, client_area().y - 1},
                      std::to_string(values_.x) + ", " + std::to_string(values_.y));
}

} // namespace quadrelle
