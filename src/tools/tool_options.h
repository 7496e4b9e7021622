#pragma once

// What each tool can be told.

#include "tools/canvas_action.h"
#include "tools/lightness_pace.h"
#include "tools/pens.h"

#include <cstdint>

namespace quadrelle {

// What the right button does with the pens.
enum class Right_Button_Mode : std::int32_t { color, history, dropper };

// Whether the tool before comes back when the dropper has picked a colour.
enum class Dropper_Return : std::int32_t { off, on };

enum class Fill_Mode : std::int32_t { solid, stamp };

// What becomes of a floating paste when it is plotted: it is gone, it floats on, or it stays in its place and
// shows whatever tool is in use.
enum class Selection_Mode : std::int32_t { standard, persistent, fixed };

// What is scrolled.
enum class Scroll_Move : std::int32_t { both, pixels, selection };

// The quick modes let what was selected float at once.
enum class Wand_Mode : std::int32_t { normal, quick_copy, quick_cut };

struct Tool_Options {
    Pen_Mode pen_mode = Pen_Mode::brush;
    Pen_Mode stamp_mode = Pen_Mode::brush;
    Right_Button_Mode right_button_mode = Right_Button_Mode::color;
    Dropper_Return dropper_return = Dropper_Return::off;
    Colorize_Type colorize_type = Colorize_Type::linear;
    Shape_Type rectangle_type = Shape_Type::outline;
    Shape_Type ellipse_type = Shape_Type::outline;
    Lightness_Mode lightness_mode = Lightness_Mode::linear;
    Button_Order button_order = Button_Order::left_lightens;
    Lightness_Speed speed = Lightness_Speed::moderate;
    Size_Compensation size_compensation = Size_Compensation::off;
    Fill_Mode fill_mode = Fill_Mode::solid;
    Selection_Mode selection_mode = Selection_Mode::standard;
    Scroll_Move scroll_move = Scroll_Move::both;
    Wand_Mode wand_mode = Wand_Mode::normal;
};

} // namespace quadrelle
