#pragma once

// The system's own dialog for choosing a file. Not every desktop has one.

#include "views/file_request.h"

namespace quadrelle {

// Elsewhere the desktop decides whether there is a dialog, and an error may mean that there is none.
#if defined(_WIN32) || defined(__APPLE__)
constexpr bool system_has_file_dialogs = true;
#else
constexpr bool system_has_file_dialogs = false;
#endif

// Shows the dialog and waits for its end. The path is in UTF-8 and absolute.
[[nodiscard]] File_Answer ask_system_dialog(const File_Request& request);

// Makes a helper program the system's dialog: it may be there although the desktop's portal, which is asked
// first, answers with an error. False where the user has decided otherwise.
bool prefer_helper_dialog();

} // namespace quadrelle
