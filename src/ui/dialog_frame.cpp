#include "ui/dialog_frame.h"

#include "color/standard_colors.h"
#include "screen/screen.h"

namespace quadrelle {

namespace {

constexpr Font title_font = Font::pane_header;
constexpr int shadow_width = 4;
constexpr Color shadow{0, 0, 0, 70};

void draw_shadow(const Rectangle& box) {
    screen->fill_rect({box.right(), box.y + shadow_width, shadow_width, box.height}, shadow);
    screen->fill_rect({box.x + shadow_width, box.bottom(), box.width - shadow_width, shadow_width}, shadow);
}

} // namespace

Dialog_Frame::Dialog_Frame(std::string_view title) : title_(title) {
    centre({area_.width, area_.height});
}

void Dialog_Frame::set_size(Size below_title) {
    centre({below_title.width, below_title.height + dialog_title_height});
}

void Dialog_Frame::centre(Size size) {
    area_ = centred(size, {0, 0, screen->size().width, screen->size().height});
}

int Dialog_Frame::title_width() const {
    return screen->text_width(title_font, title_);
}

void Dialog_Frame::draw() const {
    draw_shadow(area_);
    screen->draw_panel(area_, standard_color(Standard_Color::pane_background));
    const Rectangle bar{area_.x + 1, area_.y + 1, area_.width - 2, dialog_title_height - 2};
    screen->fill_rect(bar, standard_color(Standard_Color::dark_frame));
    screen->fill_rect({bar.x + 1, bar.y + 2, 2, bar.height - 4}, standard_color(Standard_Color::highlight));
    screen->draw_text(title_font, {area_.x + dialog_margin, bar.y + 1}, title_);
}

} // namespace quadrelle
