#pragma once

// The commands about whole documents, their files and the program: most of the menu File.

#include "commands/outcome.h"

namespace quadrelle {

struct Editor_Parts;

namespace file_commands {

Outcome make_new(Editor_Parts& editor);
Outcome load(Editor_Parts& editor);
Outcome save(Editor_Parts& editor);
Outcome save_as(Editor_Parts& editor);
Outcome export_picture(Editor_Parts& editor);
// Writes what was exported last anew, without a question. No command.
void export_again(Editor_Parts& editor);
Outcome close(Editor_Parts& editor);
Outcome edit_options(Editor_Parts& editor);
Outcome quit(Editor_Parts& editor);

} // namespace file_commands

} // namespace quadrelle
