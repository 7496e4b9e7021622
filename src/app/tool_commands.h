#pragma once

// The commands that select a tool or its colours.

#include "base/geometry.h"
#include "base/input.h"
#include "commands/outcome.h"
#include "tools/tool_catalogue.h"

namespace quadrelle {

struct Editor_Parts;

namespace tool_commands {

Outcome select(Editor_Parts& editor, Command of_tool);
Outcome select_tool(Editor_Parts& editor, Tool tool);
// Of rectangles and ellipses.
Outcome select_filled(Editor_Parts& editor, Tool shape);
// The pen painting transparent.
void select_eraser(Editor_Parts& editor);

Outcome swap_colors(Editor_Parts& editor);
// Selects another entry of the palette, so many columns and rows away.
Outcome step_in_palette(Editor_Parts& editor, Point step);
Outcome edit_color(Editor_Parts& editor);

// Let the user edit the colour of that button, or the selected one of the palette.
void edit_button_color(Mouse_Button button);
void edit_palette_color(Editor_Parts& editor);

} // namespace tool_commands

} // namespace quadrelle
