#pragma once

// The lists of keys and of what the mouse does.

#include "ui/dialog_container.h"
#include "ui/pair_list.h"

#include <vector>

namespace quadrelle {

// Returns label and name of every key: those of the command table, then those of the key table.
[[nodiscard]] std::vector<Text_Pair> all_keys();

// These are to be run; they wait until they are dismissed.
[[nodiscard]] Dialog_Container make_keyboard_dialog();
[[nodiscard]] Dialog_Container make_mouse_dialog();

} // namespace quadrelle
