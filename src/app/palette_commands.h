#pragma once

// What is done with the palettes themselves.

namespace quadrelle {

struct Editor_Parts;

namespace palette_commands {

void make(Editor_Parts& editor);
void duplicate(Editor_Parts& editor);
void rename(Editor_Parts& editor);
// The palette is one that is kept. Asks before.
void delete_shown(Editor_Parts& editor);

// There is something to undo, or to redo.
void undo(Editor_Parts& editor);
void redo(Editor_Parts& editor);

// There is room for one more, or one entry to spare.
void insert_color(Editor_Parts& editor);
void remove_entry(Editor_Parts& editor);

} // namespace palette_commands

} // namespace quadrelle
