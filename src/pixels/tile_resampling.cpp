// The operations of Tile that mix its pixels.

#include "pixels/tile.h"

#include <algorithm>
#include <cmath>

namespace quadrelle {

namespace {

// Calls place(x, y) for every pixel and stores its answer.
template <typename Place>
void rebuild(Tile& tile, Place place) {
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            tile.set_pixel(x, y, place(x, y));
        }
    }
}

// The two source columns (or rows) that make one target column, and the share of the second.
struct Sample {
    int first = 0;
    int second = 0;
    float fraction = 0;
};

// The odd 1.01 keeps the last column inside the range that is sampled. The single precision and the order of
// the operations decide pixels.
std::vector<Sample> sample_axis(int source_length, int target_length) {
    const auto source = static_cast<float>(source_length);
    const auto target = static_cast<float>(target_length);
    const float span = source - (1.01F - source / target);
    const float step = target / span;
    std::vector<Sample> samples(static_cast<std::size_t>(target_length));
    for (int i = 0; i < target_length; ++i) {
        // Below the source's length whatever the two lengths are.
        const float position = static_cast<float>(i) / step;
        const float below = std::floor(position);
        const auto inside = [&](float whole) {
            return std::clamp(static_cast<int>(whole), 0, source_length - 1);
        };
        samples[static_cast<std::size_t>(i)] = {inside(below), inside(std::ceil(position)), position - below};
    }
    return samples;
}

Color mixed(const Tile& source, const Sample& column, const Sample& row) {
    const float fu = column.fraction;
    const float fv = row.fraction;
    const float w11 = fu * fv;
    const float w10 = fu * (1 - fv);
    const float w01 = (1 - fu) * fv;
    const float w00 = (1 - fu) * (1 - fv);
    const Color c11 = source.get_pixel(column.second, row.second);
    const Color c10 = source.get_pixel(column.second, row.first);
    const Color c01 = source.get_pixel(column.first, row.second);
    const Color c00 = source.get_pixel(column.first, row.first);
    const auto channel = [&](std::uint8_t Color::*part) {
        const float upper = static_cast<float>(c11.*part) * w11 + static_cast<float>(c10.*part) * w10 +
                            static_cast<float>(c01.*part) * w01;
        return static_cast<int>(upper + static_cast<float>(c00.*part) * w00);
    };
    return {channel(&Color::r), channel(&Color::g), channel(&Color::b)};
}

} // namespace

void Tile::resample_into(Tile& target) const {
    if (same_size(target)) {
        copy_to(target);
        return;
    }
    if (pixels_.empty()) {
        target.fill({});
        return;
    }
    const std::vector<Sample> columns = sample_axis(width_, target.width());
    const std::vector<Sample> rows = sample_axis(height_, target.height());
    rebuild(target, [&](int x, int y) {
        return mixed(*this, columns[static_cast<std::size_t>(x)], rows[static_cast<std::size_t>(y)]);
    });
}

void Tile::anti_alias() {
    Tile enlarged(3 * width_, 3 * height_);
    resample_into(enlarged);
    enlarged.resample_into(*this);
}

} // namespace quadrelle
