#pragma once

// What a file was like when the program read or wrote it, so that it can tell later whether somebody else has
// written to it since.

#include "base/platform_files.h"

#include <cstdint>
#include <string>

namespace quadrelle {

struct File_Stamp {
    File_State state;
    std::uint64_t fingerprint = 0; // of all bytes

    bool operator==(const File_Stamp&) const = default;
};

// Whether the file is there and holds something else. One that was only touched is read to find that out.
[[nodiscard]] bool is_changed(const std::string& path, const File_Stamp& stamp);

} // namespace quadrelle
