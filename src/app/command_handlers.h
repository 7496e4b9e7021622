#pragma once

// Which function carries out which command.

#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

// Calls the handler of the command. One that needs a tile is refused where there is none; the user is told.
[[nodiscard]] Outcome carry_out(Editor_Parts& editor, Command command);

} // namespace quadrelle
