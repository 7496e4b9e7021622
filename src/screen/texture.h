#pragma once

// A still image, made once from a surface.

#include "base/geometry.h"

#include <memory>

namespace quadrelle {

class Surface;
struct Image;

class Texture {
public:
    // Fatal when there is no memory for it.
    explicit Texture(const Surface& surface);

    void draw(const Rectangle& destination) const;
    void draw_at(Point position) const;
    // The part `source` of the image, stretched over `destination` without smoothing.
    void draw_part(const Rectangle& source, const Rectangle& destination) const;

    [[nodiscard]] Size size() const;
    [[nodiscard]] const std::shared_ptr<const Image>& image() const { return image_; }

private:
    std::shared_ptr<const Image> image_;
};

} // namespace quadrelle
