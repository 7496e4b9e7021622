#pragma once

// A still image on the renderer's side, made once from a surface.

#include "base/geometry.h"
#include "screen/streaming_texture.h"

namespace quadrelle {

class Surface;

class Texture {
public:
    // Fatal when the renderer cannot make it.
    Texture(const Surface& surface, SDL_Renderer* renderer);

    void draw(const Rectangle& destination) const;
    void draw_at(Point position) const;
    // The part `source` of the image, stretched over `destination` without smoothing.
    void draw_part(const Rectangle& source, const Rectangle& destination) const;

    [[nodiscard]] Size size() const { return size_; }

private:
    Size size_;
    SDL_Renderer* renderer_;
    Texture_Handle texture_;
};

} // namespace quadrelle
