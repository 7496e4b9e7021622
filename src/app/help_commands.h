#pragma once

// The commands with which the program tells about itself: the menu Help, and what developers look at.

#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace help_commands {

// About what lies under the pointer; over the tile, about the tool that would be used on it.
Outcome context_info(Editor_Parts& editor);
Outcome keyboard_commands(Editor_Parts& editor);
Outcome mouse_commands(Editor_Parts& editor);
Outcome about(Editor_Parts& editor);
Outcome debug_monitor(Editor_Parts& editor);
Outcome test(Editor_Parts& editor);

} // namespace help_commands

} // namespace quadrelle
