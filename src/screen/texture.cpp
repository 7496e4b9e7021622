#include "screen/texture.h"

#include "screen/frame.h"
#include "screen/image.h"
#include "screen/surface.h"

#include <algorithm>

namespace quadrelle {

namespace {

std::shared_ptr<const Image> image_of(const Surface& surface) {
    const auto image = make_image(surface.size(), "Could not set SDL texture from surface.");
    const Pixel_Rows target = image->rows();
    for (int y = 0; y < target.size.height; ++y) {
        std::copy_n(surface.row(y), target.size.width, target.row(y));
    }
    image->is_opaque = are_opaque(image->pixels);
    return image;
}

} // namespace

Texture::Texture(const Surface& surface) : image_(image_of(surface)) {}

Size Texture::size() const {
    return image_->size;
}

void Texture::draw(const Rectangle& destination) const {
    draw_part({0, 0, size().width, size().height}, destination);
}

void Texture::draw_at(Point position) const {
    draw({position.x, position.y, size().width, size().height});
}

void Texture::draw_part(const Rectangle& source, const Rectangle& destination) const {
    active_frame()->add_image(image_, source, destination);
}

} // namespace quadrelle
