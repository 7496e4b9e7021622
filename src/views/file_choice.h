#pragma once

// Which file a name means that was chosen or typed, and whether it will do.

#include "views/file_request.h"

#include <string>

namespace quadrelle {

// Returns the path with the extension that is forced on it; to open, also with one that was left out.
[[nodiscard]] std::string final_path(const File_Request& request, const std::string& path);
// Returns why the file cannot be opened or saved to, as a sentence; empty where it can.
[[nodiscard]] std::string fault_of_choice(const File_Request& request, const std::string& path);
// Returns why a folder of that name would be no good, as a sentence; empty where it would.
[[nodiscard]] std::string fault_of_folder_name(const std::string& name);

} // namespace quadrelle
