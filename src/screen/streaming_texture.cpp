#include "screen/streaming_texture.h"

#include "screen/frame.h"
#include "screen/image.h"

#include <algorithm>

namespace quadrelle {

Streaming_Texture::Streaming_Texture(std::span<const Color> pixels, Size size)
    : image_(make_image(size, "Could not set SDL texture from pixel data.")) {
    upload(pixels);
}

void Streaming_Texture::upload(std::span<const Color> pixels) {
    begin_change(image_, {0, 0, size().width, size().height});
    std::ranges::copy(pixels.first(image_->pixels.size()), image_->pixels.begin());
    image_->is_opaque = std::ranges::all_of(pixels, [](Color color) { return color.a == 255; });
}

void Streaming_Texture::draw_part(const Rectangle& source, const Rectangle& destination) const {
    active_frame()->add_image(image_, source, destination);
}

Size Streaming_Texture::size() const {
    return image_->size;
}

} // namespace quadrelle
