#pragma once

// The one renderer that every texture is made with.

struct SDL_Renderer;

namespace quadrelle {

// Null until the screen is built. Textures made without a renderer hold no image, so that pixel work
// needs no window.
[[nodiscard]] SDL_Renderer* active_renderer();
void set_active_renderer(SDL_Renderer* renderer);

} // namespace quadrelle
