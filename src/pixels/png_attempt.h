#pragma once

// Calls of libpng. It reports an error by a long jump, which may leave no C++ object behind.

#include <png.h>

#include <csetjmp>

namespace quadrelle {

// Answers false when libpng gave up. The step makes calls of this libpng object and leaves no object behind.
template <typename Step>
bool attempt_png(png_structp png, Step step) {
    if (setjmp(png_jmpbuf(png)) != 0) {
        return false;
    }
    step();
    return true;
}

} // namespace quadrelle
