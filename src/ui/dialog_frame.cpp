#include "ui/dialog_frame.h"

#include "app/screen.h"
#include "color/standard_colors.h"

namespace quadrelle {

namespace {

constexpr int shadow_width = 4;
constexpr Color shadow{0, 0, 0, 70};

void draw_shadow(const Rectangle& box) {
    screen->fill_rect({box.right(), box.y + shadow_width, shadow_width, box.height}, shadow);
    screen->fill_rect({box.x + shadow_width, box.bottom(), box.width - shadow_width, shadow_width}, shadow);
}

} // namespace

Dialog_Frame::Dialog_Frame(std::string_view title)
    : title_(screen->make_text_texture(title, Text_Style::highlighted)) {
    area_ = centred({area_.width, area_.height}, {0, 0, screen->size().width, screen->size().height});
}

void Dialog_Frame::set_size(Size below_title) {
    area_ = centred({below_title.width, below_title.height + dialog_title_height},
                    {0, 0, screen->size().width, screen->size().height});
}

int Dialog_Frame::title_width() const {
    return title_ ? title_->size().width : 0;
}

void Dialog_Frame::draw() const {
    draw_shadow(area_);
    screen->draw_panel(area_, standard_color(Standard_Color::pane_background));
    screen->fill_rect({area_.x + 1, area_.y + 1, area_.width - 2, dialog_title_height - 2},
                      standard_color(Standard_Color::dark_frame));
    if (title_) {
        screen->draw_texture(*title_, {area_.x + dialog_margin, area_.y + 1});
    }
}

} // namespace quadrelle
