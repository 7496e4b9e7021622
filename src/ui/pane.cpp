#include "ui/pane.h"

#include "color/standard_colors.h"
#include "screen/screen.h"

namespace quadrelle {

Pane::Pane(const Rectangle& below_title, std::string_view title) : Element(below_title) {
    // Qualified: a derived class is not there yet to lay itself out.
    area.height += pane_title_height;
    Pane::layout();
    set_title(title);
}

Pane::~Pane() = default;

void Pane::layout() {
    const int above = pane_title_height + pane_border;
    client_ = {area.x + pane_border, area.y + above, area.width - 2 * pane_border,
               area.height - above - pane_border};
}

void Pane::draw_title() const {
    if (title_) {
        screen->draw_texture(*title_, {area.x, area.y});
    }
}

void Pane::draw() const {
    draw_title();
    screen->fill_rect({area.x, area.y + pane_title_height, area.width, area.height - pane_title_height},
                      standard_color(Standard_Color::pane_background));
}

void Pane::draw_around(const Rectangle& covered) const {
    draw_title();
    const Color background = standard_color(Standard_Color::pane_background);
    const int top = area.y + pane_title_height;
    screen->fill_rect({area.x, top, area.width, covered.y - top}, background);
    screen->fill_rect({area.x, covered.bottom(), area.width, area.bottom() - covered.bottom()}, background);
    screen->fill_rect({area.x, covered.y, covered.x - area.x, covered.height}, background);
    screen->fill_rect({covered.right(), covered.y, area.right() - covered.right(), covered.height},
                      background);
}

void Pane::set_title(std::string_view title) {
    title_ = screen->make_header(title, Header_Style::passive);
}

Rectangle Pane::title_area() const {
    return {area.x, area.y, title_ ? title_->size().width : 0, pane_title_height};
}

void Pane::draw_frame() const {
    screen->draw_outline(client_area(), standard_color(Standard_Color::pane_frame));
}

void Pane::clear(Color color) const {
    screen->fill_rect(client_area(), color);
    screen->draw_outline(client_area(), color);
}

} // namespace quadrelle
