#pragma once

// What a press of a mouse button does: it pans, draws on the canvas, or goes to the pane that it hits.

#include "commands/command.h"

namespace quadrelle {

struct Editor_Parts;

// Answers the press of the button and at the place that `editor.pointer` holds. Returns the command that is
// still to be carried out, or none.
[[nodiscard]] Command press_mouse(Editor_Parts& editor);

} // namespace quadrelle
