#pragma once

// The commands that change how the tile is seen.

#include "canvas/canvas_view.h"
#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace view_commands {

Outcome zoom(Editor_Parts& editor, Zoom_Step step);
Outcome centre(Editor_Parts& editor);
Outcome view_in_real_size(Editor_Parts& editor);

} // namespace view_commands

} // namespace quadrelle
