#pragma once

// Buttons with a label or a sprite, and the one that is checked and unchecked.

#include "base/table.h"
#include "screen/sprite_sheet.h"
#include "ui/dialog_item.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace quadrelle {

enum class Button_Type : std::int32_t {
    ok,
    cancel,
    less,
    more,
    radio_uncheck,
    radio_check,
    red,
    green,
    blue,
    alpha,
    saturation,
    lightness,
    middle,
    left,
    right,
    set,
    copy,
    overwrite,
    count
};

struct Button_Row {
    Button_Type id;
    std::string_view label;
    Sprite sprite; // `count` for a button with a label
    Size label_size;
    Dialog_Event_Kind event;

    [[nodiscard]] constexpr bool has_sprite() const { return sprite != Sprite::count; }
    [[nodiscard]] constexpr Size size() const {
        const Rectangle on_sheet = has_sprite() ? sprite_rect(sprite) : Rectangle{};
        return has_sprite() ? Size{on_sheet.width, on_sheet.height} : label_size;
    }
};

// clang-format off
constexpr std::array button_table = {
    Button_Row{Button_Type::ok,            "Ok",            Sprite::count,               {60, 27}, Dialog_Event_Kind::accept},
    Button_Row{Button_Type::cancel,        "Cancel",        Sprite::count,               {85, 27}, Dialog_Event_Kind::cancel},
    Button_Row{Button_Type::less,          "Less",          Sprite::button_less,         {},       Dialog_Event_Kind::decrease},
    Button_Row{Button_Type::more,          "More",          Sprite::button_more,         {},       Dialog_Event_Kind::increase},
    Button_Row{Button_Type::radio_uncheck, "Radio uncheck", Sprite::radiobutton_uncheck, {},       Dialog_Event_Kind::radio},
    Button_Row{Button_Type::radio_check,   "Radio check",   Sprite::radiobutton_check,   {},       Dialog_Event_Kind::radio},
    Button_Row{Button_Type::red,           "Red",           Sprite::handlebutton_r,      {},       Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::green,         "Green",         Sprite::handlebutton_g,      {},       Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::blue,          "Blue",          Sprite::handlebutton_b,      {},       Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::alpha,         "Alpha",         Sprite::handlebutton_a,      {},       Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::saturation,    "Saturation",    Sprite::handlebutton_s,      {},       Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::lightness,     "Lightness",     Sprite::handlebutton_l,      {},       Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::middle,        "Middle",        Sprite::button_middle,       {},       Dialog_Event_Kind::middle},
    Button_Row{Button_Type::left,          "Left",          Sprite::count,               {70, 27}, Dialog_Event_Kind::left},
    Button_Row{Button_Type::right,         "Right",         Sprite::count,               {85, 27}, Dialog_Event_Kind::right},
    Button_Row{Button_Type::set,           "Set",           Sprite::count,               {65, 27}, Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::copy,          "Copy",          Sprite::count,               {70, 27}, Dialog_Event_Kind::unknown},
    Button_Row{Button_Type::overwrite,     "Overwrite",     Sprite::count,               {115, 27}, Dialog_Event_Kind::accept},
};
// clang-format on

static_assert(button_table.size() == static_cast<std::size_t>(Button_Type::count));
static_assert(rows_follow_their_ids(button_table));

class Button_Dialog_Item : public Dialog_Item {
public:
    Button_Dialog_Item(Item_Id ids, Button_Type type, Font item_font = Font::regular);

    [[nodiscard]] Button_Type type() const { return type_; }

    Dialog_Event click(Point point) override;
    [[nodiscard]] Dialog_Event_Kind event() const override { return row().event; }
    // Puts all but four kinds two pixels lower than the text beside them.
    void set_position(Point position) override;
    void draw() const override;
    void save(Data_Stream& stream) const override;
    // A file cannot make a button of a dialog another one: what it says is skipped.
    void load(Data_Stream& stream) override;

protected:
    [[nodiscard]] const Button_Row& row() const { return button_table.at(static_cast<std::size_t>(type_)); }

    Button_Type type_;
};

class Radiobutton_Dialog_Item : public Button_Dialog_Item {
public:
    Radiobutton_Dialog_Item(Item_Id ids, bool is_checked, Font item_font = Font::regular);

    // Returns 1 when checked, else 0.
    [[nodiscard]] int value() const override { return type_ == Button_Type::radio_check ? 1 : 0; }
    void set_value(int value) override;
    Dialog_Event click(Point point) override;
    // Takes nothing but its two types.
    void load(Data_Stream& stream) override;
};

} // namespace quadrelle
