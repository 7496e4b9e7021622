#pragma once

// Pictures of the window that are kept in docs/pictures/expected, to compare with.

#include <cstdint>
#include <span>
#include <string>

namespace quadrelle::testing {

// The window's pixels, row by row, are those of that picture. With QUADRELLE_WRITE_PICTURES in the
// environment they become it, and the test is skipped; without libpng too.
void expect_stored_picture(const std::string& name, std::span<const std::uint32_t> window);

} // namespace quadrelle::testing
