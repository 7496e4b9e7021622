#pragma once

// How a dialog for choosing a file ended.

#include <string>

namespace quadrelle {

enum class File_Answer_State : int { pending = -1, chosen = 0, failed = 1, cancelled = 2 };

struct File_Answer {
    File_Answer_State state = File_Answer_State::pending;
    std::string path;
};

} // namespace quadrelle
