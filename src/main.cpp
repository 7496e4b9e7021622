#include "app/start_up.h"

#define SDL_MAIN_HANDLED
#include <SDL3/SDL_main.h>

namespace {

int run(int /*argument_count*/, char** /*arguments*/) {
    quadrelle::run_application();
    return 0;
}

} // namespace

int main(int argument_count, char** arguments) {
    return SDL_RunApp(argument_count, arguments, run, nullptr);
}
