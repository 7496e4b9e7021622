#pragma once

// An open file that closes itself, and the ways to open one.

#include <cstdio>
#include <memory>

namespace quadrelle {

struct File_Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File_Handle = std::unique_ptr<std::FILE, File_Closer>;

// `write` empties a file that is there, `create` fails when there is one, `append` goes on at the end of one
// that is there.
enum class File_Mode { read, write, create, append };

} // namespace quadrelle
