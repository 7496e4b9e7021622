#include "pixels/enlarged_picture.h"

#include <algorithm>
#include <span>
#include <utility>

namespace quadrelle {

namespace {

// Black is not what a transparent pixel shows, although that may be black as well.
inline bool looks_same(Color pixel, Color other) {
    return pixel == other || (pixel.a | other.a) == 0;
}

// A pixel that becomes four.
class Divided_Pixel {
public:
    Divided_Pixel(const Color* pixel, std::ptrdiff_t row)
        : Divided_Pixel(*pixel, {pixel[-1], pixel[1]}, {pixel[-row], pixel[row]}) {}
    // What is left and right of it, and what above and below, in any order.
    Divided_Pixel(Color own, std::pair<Color, Color> sides, std::pair<Color, Color> others)
        : own_(own),
          keeps_all_(looks_same(sides.first, sides.second) || looks_same(others.first, others.second)) {}

    // The one between these two neighbours.
    [[nodiscard]] Color quarter(Color side, Color other) const {
        return !keeps_all_ && looks_same(side, other) ? side : own_;
    }

private:
    Color own_;
    bool keeps_all_;
};

} // namespace

Enlarged_Picture::Enlarged_Picture(const Tile& picture)
    : doubled_(2 * (picture.width() + 2 * margin), 2 * (picture.height() + 2 * margin)) {
    double_up(framed(picture));
}

Tile Enlarged_Picture::framed(const Tile& picture) {
    const std::ptrdiff_t width = picture.width();
    Tile result(picture.width() + 2 * margin, picture.height() + 2 * margin);
    result.change_pixels([&](std::span<Color> pixels) {
        auto target = pixels.begin();
        for (int y = 0; y < result.height(); ++y) {
            const Color* const row = pixel_of(picture, 0, std::clamp(y - margin, 0, picture.height() - 1));
            target = std::fill_n(target, margin, row[0]);
            target = std::copy_n(row, width, target);
            target = std::fill_n(target, margin, row[width - 1]);
        }
    });
    return result;
}

// The outermost pixels, which have no neighbours, are left out: nobody asks for them.
void Enlarged_Picture::double_up(const Tile& picture) {
    const std::ptrdiff_t row = picture.width();
    doubled_.change_pixels([&picture, row](std::span<Color> pixels) {
        for (int y = 1; y < picture.height() - 1; ++y) {
            const Color* pixel = pixel_of(picture, 1, y);
            Color* target = pixels.data() + 4 * row * y + 2;
            for (int x = 1; x < row - 1; ++x, ++pixel, target += 2) {
                const Divided_Pixel divided(pixel, row);
                target[0] = divided.quarter(pixel[-1], pixel[-row]);
                target[1] = divided.quarter(pixel[1], pixel[-row]);
                target[2 * row] = divided.quarter(pixel[-1], pixel[row]);
                target[2 * row + 1] = divided.quarter(pixel[1], pixel[row]);
            }
        }
    });
}

// So it is where at no corner the two neighbours look the same, unless they are as the pixel is.
bool Enlarged_Picture::is_plain(const Color* pixel) const {
    const std::ptrdiff_t row = doubled_.width();
    const auto is_cut = [pixel](std::ptrdiff_t side, std::ptrdiff_t other) {
        return looks_same(pixel[side], pixel[other]) && pixel[side] != *pixel;
    };
    return !is_cut(-1, -row) && !is_cut(1, -row) && !is_cut(-1, row) && !is_cut(1, row);
}

Color Enlarged_Picture::pixel_within(const Color* pixel, int x, int y) const {
    const std::ptrdiff_t row = doubled_.width();
    const std::ptrdiff_t side = x < 2 ? -1 : 1;
    const std::ptrdiff_t other = y < 2 ? -row : row;
    // The quarter that it lies in, those beside that in the same pixel, and those in the next ones.
    const Divided_Pixel divided(pixel, row);
    const Color own = divided.quarter(pixel[side], pixel[other]);
    const Color inner_side = divided.quarter(pixel[-side], pixel[other]);
    const Color inner_other = divided.quarter(pixel[side], pixel[-other]);
    const Color outer_side = Divided_Pixel(pixel + side, row).quarter(*pixel, pixel[side + other]);
    const Color outer_other = Divided_Pixel(pixel + other, row).quarter(pixel[side + other], *pixel);
    const bool is_outer_side = (x % 2 == 0) == (x < 2);
    const bool is_outer_other = (y % 2 == 0) == (y < 2);
    return Divided_Pixel(own, {inner_side, outer_side}, {inner_other, outer_other})
        .quarter(is_outer_side ? outer_side : inner_side, is_outer_other ? outer_other : inner_other);
}

} // namespace quadrelle
