#include "ui/text_button.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"

namespace quadrelle {

namespace {

constexpr Font font = Font::regular;

void draw_label(const Rectangle& area, Font label_font, std::string_view label, int drop) {
    const int x = area.x + (area.width - screen->text_width(label_font, label)) / 2;
    screen->draw_text(label_font, {x, area.y + drop}, label);
}

} // namespace

void draw_button(const Rectangle& area, const Button_Label& label, Usable usable) {
    screen->draw_panel(area, standard_color(Standard_Color::pane_frame));
    draw_label(area, label.font, label.text, label.drop);
    draw_answer(area, usable);
}

void draw_default_mark(const Rectangle& button) {
    screen->draw_outline(button.inset(-2), standard_color(Standard_Color::highlight));
}

void Text_Button::draw(Button_Look look) const {
    const int drop = (area_.height - line_height(font)) / 2;
    if (look != Button_Look::chosen) {
        draw_button(area_, {font, label_, drop});
        if (look == Button_Look::by_default) {
            draw_default_mark(area_);
        }
        return;
    }
    const Color fill = standard_color(Standard_Color::list_active);
    screen->fill_rect(area_.inset(1), fill);
    screen->draw_bevel(area_, fill, Bevel::sunken);
    screen->fill_rect({area_.x + 4, area_.bottom() - 3, area_.width - 8, 2},
                      standard_color(Standard_Color::highlight));
    draw_label(area_, font, label_, drop);
    draw_answer(area_);
}

} // namespace quadrelle
