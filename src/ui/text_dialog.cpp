#include "ui/text_dialog.h"

#include "screen/screen.h"
#include "screen/sprite_sheet.h"

namespace quadrelle {

Text_Dialog::Text_Dialog(Item_Id ids, std::string_view text, Font item_font)
    : Dialog_Item(ids, item_font), text_(text) {
    area.width = screen->text_width(font, text_);
    area.height = screen->text_height(font, text_);
}

void Text_Dialog::draw() const {
    screen->draw_text(font, {area.x, area.y}, text_);
}

Image_Dialog_Item::Image_Dialog_Item(Item_Id ids, Sprite sprite) : Dialog_Item(ids), sprite_(sprite) {
    area.width = sprite_rect(sprite).width;
    area.height = sprite_rect(sprite).height;
}

void Image_Dialog_Item::draw() const {
    screen->draw_sprite(sprite_, {area.x, area.y});
}

} // namespace quadrelle
