#pragma once

// An image that mirrors an array of pixels which changes.

#include "base/geometry.h"
#include "color/color.h"

#include <memory>
#include <span>

namespace quadrelle {

struct Image;

class Streaming_Texture {
public:
    // Takes width * height pixels, row by row from the top. Fatal when there is no memory for them.
    Streaming_Texture(std::span<const Color> pixels, Size size);

    // Replaces the whole image; as many pixels as at construction.
    void upload(std::span<const Color> pixels);
    // The part `source` of the image, stretched over `destination` without smoothing.
    void draw_part(const Rectangle& source, const Rectangle& destination) const;

    [[nodiscard]] Size size() const;

private:
    std::shared_ptr<Image> image_;
};

} // namespace quadrelle
