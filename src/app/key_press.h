#pragma once

// What a pressed key does: the keys of the commands stand in the command table.

#include "base/input.h"
#include "commands/command.h"

namespace quadrelle {

struct Editor_Parts;

// Returns the command that is still to be carried out, or none.
[[nodiscard]] Command press_key(Editor_Parts& editor, Key_Chord chord);

} // namespace quadrelle
