#ifdef _WIN32

#include "base/end_signals.h"

// There the system closes the window instead.
namespace quadrelle {

void catch_end_signals() {}

void release_end_signals() {}

bool take_end_signal() {
    return false;
}

void take_no_signals() {}

} // namespace quadrelle

#endif
