#include "app/start_up.h"
#include "base/fatal.h"

#define SDL_MAIN_HANDLED
#include <SDL3/SDL_main.h>

#include <cstdlib>

namespace {

bool has_ended = false;

// The window system's library ends the process by itself when the display goes away. Nothing is to be taken
// apart then: what the objects refer to is gone.
void end_at_once() {
    if (!has_ended) {
        quadrelle::run_last_act();
        std::_Exit(1);
    }
}

int run(int /*argument_count*/, char** /*arguments*/) {
    std::atexit(end_at_once);
    quadrelle::run_application();
    has_ended = true;
    return 0;
}

} // namespace

int main(int argument_count, char** arguments) {
    return SDL_RunApp(argument_count, arguments, run, nullptr);
}
