#include "screen/texture.h"

#include "base/fatal.h"
#include "screen/float_rectangle.h"
#include "screen/surface.h"

#include <SDL3/SDL.h>

namespace quadrelle {

Texture::Texture(const Surface& surface, SDL_Renderer* renderer)
    : size_(surface.size()), renderer_(renderer),
      texture_(SDL_CreateTextureFromSurface(renderer, surface.handle())) {
    if (!texture_) {
        fatal("Could not set SDL texture from surface.");
    }
    SDL_SetTextureScaleMode(texture_.get(), SDL_SCALEMODE_NEAREST);
    SDL_SetTextureBlendMode(texture_.get(), SDL_BLENDMODE_BLEND);
}

void Texture::draw(const Rectangle& destination) const {
    draw_part({0, 0, size_.width, size_.height}, destination);
}

void Texture::draw_at(Point position) const {
    draw({position.x, position.y, size_.width, size_.height});
}

void Texture::draw_part(const Rectangle& source, const Rectangle& destination) const {
    const SDL_FRect from = float_rectangle(source);
    const SDL_FRect to = float_rectangle(destination);
    SDL_RenderTexture(renderer_, texture_.get(), &from, &to);
}

} // namespace quadrelle
