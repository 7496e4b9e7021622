#pragma once

// The program's own dialog for choosing a file, for systems that bring none.

#include "views/file_answer.h"

#include <string_view>

namespace quadrelle {

enum class File_Direction { open, save };

struct File_Request {
    std::string_view title;
    File_Direction direction;
    std::string_view filter_label;
    std::string_view pattern;          // an extension, or "*" for every file
    std::string_view forced_extension; // of what is saved; none when empty
};

// Waits for the answer: an absolute path in UTF-8, cancelled, or failed when not even a root folder can be
// read. Starts in the current directory and later in the folder last chosen from. Asks before an existing
// file is chosen to be saved over.
[[nodiscard]] File_Answer run_file_chooser(const File_Request& request);

} // namespace quadrelle
