#pragma once

// Where the tests find the project's own files and the program that was built beside them.

#include <filesystem>

namespace quadrelle::testing {

[[nodiscard]] std::filesystem::path source_folder();
[[nodiscard]] std::filesystem::path built_program();

} // namespace quadrelle::testing
