#include "ui/text_button.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"

namespace quadrelle {

void Text_Button::draw(Button_Look look) const {
    constexpr Font font = Font::regular;
    const bool is_chosen = look == Button_Look::chosen;
    const Color fill = standard_color(is_chosen ? Standard_Color::list_active : Standard_Color::pane_frame);
    screen->draw_panel(area_, fill);
    if (is_chosen) {
        screen->draw_bevel(area_, fill, Bevel::sunken);
        screen->fill_rect({area_.x + 4, area_.bottom() - 3, area_.width - 8, 2},
                          standard_color(Standard_Color::highlight));
    }
    const Point text{area_.x + (area_.width - screen->text_width(font, label_)) / 2,
                     area_.y + (area_.height - line_height(font)) / 2};
    screen->draw_text(font, text, label_);
}

} // namespace quadrelle
