#pragma once

// Changes of colours, of one tile as a step that can be undone, and of all tiles.

#include "commands/command.h"
#include "commands/outcome.h"
#include "tools/recolor.h"

#include <functional>
#include <string_view>

namespace quadrelle {

struct Editor_Parts;

// The step is called after the command.
Outcome recolor_step(Editor_Parts& editor, Command name, const std::function<Outcome()>& change);
// Asks before, under that title, and begins the history anew: one step of it holds one tile.
Outcome recolor_set(Editor_Parts& editor, std::string_view title, const Color_Map& map);

} // namespace quadrelle
