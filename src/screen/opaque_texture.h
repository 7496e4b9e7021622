#pragma once

// An opaque picture that is composed in memory and shown at its own size.

#include "base/geometry.h"
#include "color/pixel_rows.h"

#include <functional>
#include <memory>

namespace quadrelle {

struct Image;

class Opaque_Texture {
public:
    // Fatal when there is no memory for it.
    explicit Opaque_Texture(Size size);

    // `paint` writes every pixel; opaque ones only.
    void update(const std::function<void(const Pixel_Rows&)>& paint);
    // `paint` gets the rows of the part alone and writes every pixel of them.
    void update_part(const Rectangle& part, const std::function<void(const Pixel_Rows&)>& paint);
    void draw_at(Point position) const;

    [[nodiscard]] Size size() const;
    [[nodiscard]] const Image& image() const { return *image_; }

private:
    std::shared_ptr<Image> image_;
};

} // namespace quadrelle
