#pragma once

// The program's own dialog for choosing a file, for systems that bring none.

#include "views/file_request.h"

namespace quadrelle {

// Waits for the answer: an absolute path in UTF-8, cancelled, or failed when not even a root folder can be
// read. Starts in the current directory and later in the folder last chosen from; to save, in the folder of
// the proposed path, if it has one, with its name. Asks before an existing file is chosen to be saved over.
[[nodiscard]] File_Answer run_file_chooser(const File_Request& request, const std::string& proposed);

} // namespace quadrelle
