#include "screen/streaming_texture.h"

#include "pixels/changed_area.h"
#include "screen/frame.h"
#include "screen/image.h"

#include <algorithm>

namespace quadrelle {

Streaming_Texture::Streaming_Texture(std::span<const Color> pixels, Size size)
    : image_(make_image(size, "Could not set SDL texture from pixel data.")) {
    std::ranges::copy(pixels.first(image_->pixels.size()), image_->pixels.begin());
    image_->is_opaque = are_opaque(image_->pixels);
}

// Only what is different counts as changed.
void Streaming_Texture::upload(std::span<const Color> pixels) {
    begin_change(image_, {});
    const Rectangle changed = update_copy(pixels.first(image_->pixels.size()), size(), image_->pixels);
    image_->changed = bounds_of(image_->changed, changed);
    image_->is_opaque = are_opaque(image_->pixels);
}

void Streaming_Texture::draw_part(const Rectangle& source, const Rectangle& destination) const {
    active_frame()->add_image(image_, source, destination);
}

Size Streaming_Texture::size() const {
    return image_->size;
}

} // namespace quadrelle
