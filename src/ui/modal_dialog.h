#pragma once

// The one way in which dialogs run: over the window, and over the dialogs that are open already.

#include "screen/events.h"

#include <functional>
#include <string_view>

namespace quadrelle {

using Draw_Function = std::function<void()>;

// What dialogs lie over: the whole window, not yet presented. Without any it is empty.
void set_backdrop(Draw_Function draw);
// Draws and presents the backdrop and every open dialog.
void show_backdrop();
// Does the same, and draws something over all of it.
void show_over_backdrop(const Draw_Function& draw);

// Which keys accept a dialog; the keypad has an Enter too. Where names are typed, y is a letter.
enum class Dialog_Keys { enter, enter_or_y };

// Escape and the window's close button give up every dialog.
struct Modal_Dialog {
    std::string_view name;
    Draw_Function draw;
    std::function<Loop_Step(const Input_Event&)> handle; // what neither accepts nor gives up
    std::function<Loop_Step()> accept;
    Dialog_Keys keys = Dialog_Keys::enter_or_y;
};
// Returns when an event has ended it.
void run_dialog(const Modal_Dialog& dialog);

} // namespace quadrelle
