#include "screen/opaque_texture.h"

#include "base/fatal.h"
#include "screen/float_rectangle.h"

#include <SDL3/SDL.h>

namespace quadrelle {

// The layout of `Color` without alpha, which is also the window's on most machines: nothing is converted
// or blended on the way.
Opaque_Texture::Opaque_Texture(Size size, SDL_Renderer* renderer) : size_(size), renderer_(renderer) {
    if (renderer_ == nullptr) {
        return;
    }
    texture_.reset(SDL_CreateTexture(renderer_, SDL_PIXELFORMAT_XRGB8888, SDL_TEXTUREACCESS_STREAMING,
                                     size.width, size.height));
    if (!texture_) {
        fatal("Could not set SDL texture from pixel data.");
    }
    SDL_SetTextureScaleMode(texture_.get(), SDL_SCALEMODE_NEAREST);
    SDL_SetTextureBlendMode(texture_.get(), SDL_BLENDMODE_NONE);
}

void Opaque_Texture::update(const std::function<void(const Pixel_Rows&)>& paint) {
    void* memory = nullptr;
    int pitch = 0;
    if (texture_ && SDL_LockTexture(texture_.get(), nullptr, &memory, &pitch)) {
        paint({static_cast<Color*>(memory), pitch, size_});
        SDL_UnlockTexture(texture_.get());
    }
}

void Opaque_Texture::draw_at(Point position) const {
    if (texture_) {
        const SDL_FRect to = float_rectangle({position.x, position.y, size_.width, size_.height});
        SDL_RenderTexture(renderer_, texture_.get(), nullptr, &to);
    }
}

} // namespace quadrelle
