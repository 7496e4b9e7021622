#pragma once

// The command "Map editor".

#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace map_commands {

// Where there is no map yet, its size is asked for first.
Outcome edit(Editor_Parts& editor);

} // namespace map_commands

} // namespace quadrelle
