#include "screen/image.h"

#include "base/fatal.h"

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
    try {
        auto image = std::make_shared<Image>();
        image->size = size;
        image->pixels.resize(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
        image->id = next_id();
        return image;
    } catch (const std::bad_alloc&) {
        fatal(failure);
    }
}

void begin_change(std::shared_ptr<Image>& image, const Rectangle& area) {
    if (image.use_count() > 1) {
        image = std::make_shared<Image>(*image);
        image->id = next_id();
    }
    if (std::exchange(image->is_drawn, false)) {
        ++image->version;
        image->changed = area;
    } else {
        image->changed = bounds_of(image->changed, area);
    }
}

} // namespace quadrelle
