#pragma once

// The lists of keys and of what the mouse does.

#include "ui/dialog_container.h"
#include "ui/pair_list.h"

#include <vector>

namespace quadrelle {

// Returns key label and name of every command that has a key, in the order of the command table.
[[nodiscard]] std::vector<Text_Pair> keyed_commands();

// These are to be run; they wait until they are dismissed.
[[nodiscard]] Dialog_Container make_keyboard_dialog();
[[nodiscard]] Dialog_Container make_mouse_dialog();

} // namespace quadrelle
