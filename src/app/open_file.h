#pragma once

// Files that were chosen or dropped on the window, opened as what they hold.

#include "commands/outcome.h"

#include <string>

namespace quadrelle {

struct Editor_Parts;

enum class File_Origin { chosen, dropped };

// A set is opened, of a picture a new set is made, after its tiles were asked for, and a palette is kept.
// Anything else, and what is damaged, is told.
[[nodiscard]] Outcome open_file(Editor_Parts& editor, const std::string& path, File_Origin origin);

} // namespace quadrelle
