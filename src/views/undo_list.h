#pragma once

// The undo history in full.

#include "tileset/undo_history.h"

#include <cstddef>
#include <optional>

namespace quadrelle {

// Shows the list and waits until it is dismissed. Returns the entry that was clicked, if it was one.
[[nodiscard]] std::optional<std::size_t> show_undo_list(const Undo_History& history);

} // namespace quadrelle
