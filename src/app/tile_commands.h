#pragma once

// The commands about the current tile, or what is selected on it or floats over it.

#include "canvas/canvas_view.h"
#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace tile_commands {

// Moves pixels by a command that the selection, a paste and a tile know.
Outcome transform(Editor_Parts& editor, Command command);
Outcome turn(Editor_Parts& editor, Command command);
Outcome adjust_hsv(Editor_Parts& editor);
Outcome shift_to_seam(Editor_Parts& editor, Seam seam);
Outcome save_history_buffer(Editor_Parts& editor);
Outcome versions(Editor_Parts& editor);

} // namespace tile_commands

} // namespace quadrelle
