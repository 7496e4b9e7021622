#include "screen/renderer.h"

namespace quadrelle {

namespace {
SDL_Renderer* the_renderer = nullptr;
} // namespace

SDL_Renderer* active_renderer() {
    return the_renderer;
}

void set_active_renderer(SDL_Renderer* renderer) {
    the_renderer = renderer;
}

} // namespace quadrelle
