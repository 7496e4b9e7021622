#pragma once

// What a dialog for choosing a file is asked, and how it ended.

#include <string>

namespace quadrelle {

enum class File_Direction { open, save };

// All are UTF-8 and must outlive the dialog.
struct File_Request {
    const char* title;
    File_Direction direction;
    const char* filter_label;
    const char* pattern;          // an extension, or "*" for every file
    const char* forced_extension; // of what is saved; none when empty
};

// What was given up has not answered yet, and may never do.
enum class File_Answer_State : int { pending = -1, chosen = 0, failed = 1, cancelled = 2, given_up = 3 };

struct File_Answer {
    File_Answer_State state = File_Answer_State::pending;
    std::string path;
};

} // namespace quadrelle
