#include "tests/support/files.h"

namespace quadrelle::testing {

// Only this file is told them by the build.
std::filesystem::path source_folder() {
    return QUADRELLE_SOURCE_DIR;
}

std::filesystem::path built_program() {
    return QUADRELLE_PROGRAM;
}

} // namespace quadrelle::testing
