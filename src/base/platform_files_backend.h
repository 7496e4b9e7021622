#pragma once

// What each platform brings to platform_files.cpp; nothing else uses it.

#include "base/file_handle.h"

#include <cstdint>
#include <string>

namespace quadrelle::platform {

[[nodiscard]] File_Handle open_regular_file(const std::string& name, File_Mode mode);
[[nodiscard]] std::int64_t file_size(std::FILE* file);
[[nodiscard]] bool synchronize(std::FILE* file);
[[nodiscard]] bool replace_file(const std::string& from, const std::string& to);
[[nodiscard]] bool link_file(const std::string& from, const std::string& to);
[[nodiscard]] bool can_replace(const std::string& name);
// Returns the number of the fault of the last operation that failed, as in <cerrno>; 0 for an unknown one.
[[nodiscard]] int last_fault();

} // namespace quadrelle::platform
