#pragma once

// The undo history in full.

#include "tileset/undo_history.h"

namespace quadrelle {

// Shows the list and waits until it is dismissed.
void show_undo_list(const Undo_History& history);

} // namespace quadrelle
