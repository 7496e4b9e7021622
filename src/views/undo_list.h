#pragma once

// The undo history in full.

#include "tileset/undo_history.h"

namespace quadrelle {

// Waits until it is dismissed.
void show_undo_list(const Undo_History& history);

} // namespace quadrelle
