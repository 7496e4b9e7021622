#pragma once

// Pixels in memory that the window shows: what every kind of texture holds.

#include "base/geometry.h"
#include "color/color.h"
#include "color/pixel_rows.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace quadrelle {

struct Image {
    Size size;
    std::vector<Color> pixels; // row by row from the top
    bool is_opaque = false;    // nothing shows through any pixel
    // No two images have the same id, and the version counts the changes of what was drawn: the same pair is
    // the same picture.
    std::uint64_t id = 0;
    std::uint64_t version = 0;
    Rectangle changed;             // what may differ from the version before
    mutable bool is_drawn = false; // in this version

    [[nodiscard]] Pixel_Rows rows();
    [[nodiscard]] const Color* row(int y) const {
        return pixels.data() + static_cast<std::ptrdiff_t>(y) * size.width;
    }
};

// Fatal with that message when there is no memory for it.
[[nodiscard]] std::shared_ptr<Image> make_image(Size size, const char* failure);

[[nodiscard]] bool are_opaque(std::span<const Color> pixels);

// Makes the image one that may be changed: a copy takes its place while a frame that is not painted yet shows
// it. Then counts the change of `area`.
void begin_change(std::shared_ptr<Image>& image, const Rectangle& area);

} // namespace quadrelle
