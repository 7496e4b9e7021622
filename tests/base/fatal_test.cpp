#include "base/fatal.h"

#include "tests/support/files.h"

namespace quadrelle::testing {
namespace {

TEST(Fatal_Test, prints_one_line_and_ends_with_status_1) {
    EXPECT_FATAL(fatal("Unable to open 'data' directory."), "Unable to open 'data' directory.");
    EXPECT_FATAL(fatal("Could not load SDL surface from %s.", "a b.bmp"),
                 "Could not load SDL surface from %s. a b.bmp");
    EXPECT_FATAL(fatal("", "100%n"), " 100%n");
}

} // namespace
} // namespace quadrelle::testing
