#include "screen/streaming_texture.h"

#include "base/fatal.h"
#include "screen/float_rectangle.h"

#include <SDL3/SDL.h>

namespace quadrelle {

namespace {

// Red in the highest byte: alpha, blue, green, red in memory on a little-endian machine.
Uint32 rgba8888(Color color) {
    return static_cast<Uint32>(color.r) << 24U | static_cast<Uint32>(color.g) << 16U |
           static_cast<Uint32>(color.b) << 8U | color.a;
}

} // namespace

void Texture_Deleter::operator()(SDL_Texture* texture) const {
    SDL_DestroyTexture(texture);
}

Streaming_Texture::Streaming_Texture(std::span<const Color> pixels, Size size, SDL_Renderer* renderer)
    : size_(size), renderer_(renderer) {
    if (renderer_ == nullptr || size.width <= 0 || size.height <= 0) {
        return;
    }
    texture_.reset(SDL_CreateTexture(renderer_, SDL_PIXELFORMAT_RGBA8888, SDL_TEXTUREACCESS_STREAMING,
                                     size.width, size.height));
    if (!texture_) {
        fatal("Could not set SDL texture from pixel data.");
    }
    SDL_SetTextureScaleMode(texture_.get(), SDL_SCALEMODE_NEAREST);
    SDL_SetTextureBlendMode(texture_.get(), SDL_BLENDMODE_BLEND);
    upload(pixels);
}

void Streaming_Texture::upload(std::span<const Color> pixels) {
    void* memory = nullptr;
    int pitch = 0;
    if (!texture_ || !SDL_LockTexture(texture_.get(), nullptr, &memory, &pitch)) {
        return;
    }
    auto source = pixels.begin();
    for (int y = 0; y < size_.height; ++y) {
        auto* row = reinterpret_cast<Uint32*>(static_cast<std::byte*>(memory) +
                                              static_cast<std::ptrdiff_t>(y) * pitch);
        for (int x = 0; x < size_.width; ++x) {
            row[x] = rgba8888(*source++);
        }
    }
    SDL_UnlockTexture(texture_.get());
}

void Streaming_Texture::draw_part(const Rectangle& source, const Rectangle& destination) const {
    if (!texture_) {
        return;
    }
    const SDL_FRect from = float_rectangle(source);
    const SDL_FRect to = float_rectangle(destination);
    SDL_RenderTexture(renderer_, texture_.get(), &from, &to);
}

} // namespace quadrelle
