#pragma once

// The texture that an opaque picture composed in memory reaches the window through.

#include "color/pixel_rows.h"
#include "screen/streaming_texture.h"

#include <functional>

namespace quadrelle {

class Opaque_Texture {
public:
    // Fatal when the renderer cannot make it. Without a renderer nothing is ever drawn.
    Opaque_Texture(Size size, SDL_Renderer* renderer);

    // `paint` writes every pixel; opaque ones only.
    void update(const std::function<void(const Pixel_Rows&)>& paint);
    void draw_at(Point position) const;

private:
    Size size_;
    SDL_Renderer* renderer_;
    Texture_Handle texture_;
};

} // namespace quadrelle
