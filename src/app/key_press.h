#pragma once

// What a pressed key does: the keys stand in the command table, and beside it in the key table.

#include "base/input.h"
#include "commands/command.h"

namespace quadrelle {

struct Editor_Parts;

// Returns the command that is still to be carried out, or none.
[[nodiscard]] Command press_key(Editor_Parts& editor, const Input_Event& press);

} // namespace quadrelle
