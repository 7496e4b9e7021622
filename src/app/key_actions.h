#pragma once

// What keys do that is no command.

#include "commands/command.h"
#include "commands/key_table.h"

namespace quadrelle {

struct Editor_Parts;

// Returns the command that does it, which is still to be carried out, or none where it is done. Not for
// `Key_Action::none`.
[[nodiscard]] Command carry_out(Editor_Parts& editor, Key_Action action);

} // namespace quadrelle
