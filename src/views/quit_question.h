#pragma once

// Asks whether the program may end.

namespace quadrelle {

// True only for an explicit yes.
[[nodiscard]] bool confirm_quit(bool has_unsaved_tiles);

} // namespace quadrelle
