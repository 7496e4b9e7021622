#include "screen/image.h"

#include "base/fatal.h"

#include <algorithm>
#include <new>
#include <utility>

namespace quadrelle {

namespace {

std::uint64_t next_id() {
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace

Pixel_Rows Image::rows() {
    return {pixels.data(), size.width * static_cast<std::ptrdiff_t>(sizeof(Color)), size};
}

std::shared_ptr<Image> make_image(Size size, const char* failure) {
    Image image;
    image.size = size;
    try {
        image.pixels.resize(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
        image.id = next_id();
        return std::make_shared<Image>(std::move(image));
    } catch (const std::bad_alloc&) {
        fatal(failure);
    }
}

bool are_opaque(std::span<const Color> pixels) {
    return std::ranges::all_of(pixels, [](Color color) { return color.a == 255; });
}

void begin_change(std::shared_ptr<Image>& image, const Rectangle& area) {
    if (image.use_count() > 1) {
        const auto copy = make_image(image->size, "Could not set SDL texture from pixel data.");
        copy->pixels = image->pixels;
        copy->is_opaque = image->is_opaque;
        image = copy;
    }
    if (std::exchange(image->is_drawn, false)) {
        ++image->version;
        image->changed = area;
    } else {
        image->changed = bounds_of(image->changed, area);
    }
}

} // namespace quadrelle
