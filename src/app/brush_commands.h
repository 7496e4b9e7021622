#pragma once

// The commands of the brush pad and the sizes of the brush.

#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace brush_commands {

Outcome use_as_brush(Editor_Parts& editor);
Outcome move_to_pad(Editor_Parts& editor);
Outcome delete_brush(Editor_Parts& editor);
// `size_index` goes from 0 to 5.
Outcome select_size(Editor_Parts& editor, int size_index);

} // namespace brush_commands

} // namespace quadrelle
