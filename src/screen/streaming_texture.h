#pragma once

// An image on the screen's side that mirrors an array of pixels which changes.

#include "base/geometry.h"
#include "color/color.h"

#include <cstddef>
#include <memory>
#include <span>

struct SDL_Texture;
struct SDL_Renderer;

namespace quadrelle {

struct Texture_Deleter {
    void operator()(SDL_Texture* texture) const;
};
using Texture_Handle = std::unique_ptr<SDL_Texture, Texture_Deleter>;

class Streaming_Texture {
public:
    // Takes width * height pixels, row by row from the top. Fatal when the renderer cannot make it.
    Streaming_Texture(std::span<const Color> pixels, Size size, SDL_Renderer* renderer);

    // Replaces the whole image; as many pixels as at construction.
    void upload(std::span<const Color> pixels);
    // The part `source` of the image, stretched over `destination` without smoothing.
    void draw_part(const Rectangle& source, const Rectangle& destination) const;

    [[nodiscard]] Size size() const { return size_; }

private:
    Size size_;
    SDL_Renderer* renderer_;
    Texture_Handle texture_;
};

} // namespace quadrelle
