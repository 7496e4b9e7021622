#pragma once

// Items that only show something: a text or a sprite.

#include "screen/sprite_table.h"
#include "ui/dialog_item.h"

#include <string_view>

namespace quadrelle {

// The text, which may have several lines, must outlive the item.
class Text_Dialog : public Dialog_Item {
public:
    Text_Dialog(Item_Id ids, std::string_view text, Font item_font = Font::regular);

    void draw() const override;

private:
    std::string_view text_;
};

class Image_Dialog_Item : public Dialog_Item {
public:
    Image_Dialog_Item(Item_Id ids, Sprite sprite);

    void draw() const override;

private:
    Sprite sprite_;
};

} // namespace quadrelle
