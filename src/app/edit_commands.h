#pragma once

// The commands of the menu Edit: steps, copies and the selection. Those of the brush pad stand in
// brush_commands.

#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace edit_commands {

Outcome undo(Editor_Parts& editor);
Outcome redo(Editor_Parts& editor);
Outcome view_undo_history(Editor_Parts& editor);

Outcome copy(Editor_Parts& editor);
Outcome cut(Editor_Parts& editor);
Outcome paste(Editor_Parts& editor);
// Floats the current copy, whatever other programs have put on the clipboard since.
Outcome paste_copy(Editor_Parts& editor);
Outcome clone(Editor_Parts& editor);
Outcome plot_paste(Editor_Parts& editor);

Outcome deselect(Editor_Parts& editor);
Outcome invert_selection(Editor_Parts& editor);
Outcome fill(Editor_Parts& editor);
Outcome clear(Editor_Parts& editor);

} // namespace edit_commands

} // namespace quadrelle
