#pragma once

// The commands about the tiles of a set, and the views of the whole set.

#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace tileset_commands {

// Which the document carries out by itself.
Outcome leave_to_document(Editor_Parts& editor, Command command);
// Goes to a neighbour of the tile or adds one, where there is one or room for one.
Outcome show_another_tile(Editor_Parts& editor, Command command);
Outcome delete_tile(Editor_Parts& editor);
Outcome arrange_select(Editor_Parts& editor);
Outcome view_tile_array(Editor_Parts& editor);
Outcome statistics(Editor_Parts& editor);

} // namespace tileset_commands

} // namespace quadrelle
