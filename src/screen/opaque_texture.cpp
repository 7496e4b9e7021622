#include "screen/opaque_texture.h"

#include "screen/frame.h"
#include "screen/image.h"

namespace quadrelle {

Opaque_Texture::Opaque_Texture(Size size)
    : image_(make_image(size, "Could not set SDL texture from pixel data.")) {
    image_->is_opaque = true;
}

void Opaque_Texture::update(const std::function<void(const Pixel_Rows&)>& paint) {
    update_part({0, 0, size().width, size().height}, paint);
}

void Opaque_Texture::update_part(const Rectangle& part, const std::function<void(const Pixel_Rows&)>& paint) {
    begin_change(image_, part);
    paint(image_->rows().part(part));
}

void Opaque_Texture::draw_at(Point position) const {
    active_frame()->add_image(image_, {0, 0, size().width, size().height},
                              {position.x, position.y, size().width, size().height});
}

Size Opaque_Texture::size() const {
    return image_->size;
}

} // namespace quadrelle
