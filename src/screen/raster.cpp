#include "screen/raster.h"

#include "color/translucency.h"
#include "screen/image.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace quadrelle {

namespace {

// Most pixels are opaque or clear.
void lay_over(Color& pixel, Color color) {
    if (color.a == 255) {
        pixel = color;
    } else if (color.a != 0) {
        pixel = blended_over(color, pixel);
    }
}

void copy_row(const Color* from, int count, Color* to, bool is_opaque) {
    if (is_opaque) {
        std::copy_n(from, count, to);
        return;
    }
    for (int x = 0; x < count; ++x) {
        lay_over(to[x], from[x]);
    }
}

// Neighbours are mostly equal, and so they are when something lies over them.
void lay_over_row(Color* row, int count, Color color) {
    Color below = row[0];
    Color shown = below;
    lay_over(shown, color);
    for (int x = 0; x < count; ++x) {
        if (row[x] != below) {
            below = row[x];
            shown = below;
            lay_over(shown, color);
        }
        row[x] = shown;
    }
}

// Where an axis is sampled: in steps of parts of 65536, from half a step on.
struct Sampling {
    std::int64_t step;
    int source_start;
    int destination_start;

    Sampling(int source, int source_extent, int destination, int destination_extent)
        : step((static_cast<std::int64_t>(source_extent) << 16) / destination_extent), source_start(source),
          destination_start(destination) {}

    [[nodiscard]] int operator()(int position) const {
        return source_start + static_cast<int>((step / 2 + step * (position - destination_start)) >> 16);
    }
};

void draw_stretched(const Clipped_Target& target, const Image& image, const Rectangle& source,
                    const Rectangle& destination) {
    const Rectangle shown = intersection(destination, target.clip);
    const Sampling column(source.x, source.width, destination.x, destination.width);
    const Sampling row(source.y, source.height, destination.y, destination.height);
    for (int y = shown.y; y < shown.bottom(); ++y) {
        const Color* const from = image.row(row(y));
        Color* const to = target.pixels.row(y);
        for (int x = shown.x; x < shown.right(); ++x) {
            lay_over(to[x], from[column(x)]);
        }
    }
}

} // namespace

void fill(const Clipped_Target& target, const Rectangle& area, Color color) {
    const Rectangle shown = intersection(area, target.clip);
    if (shown.is_empty()) {
        return;
    }
    const Color* const first = target.pixels.row(shown.y) + shown.x;
    for (int y = shown.y; y < shown.bottom(); ++y) {
        Color* const row = target.pixels.row(y) + shown.x;
        if (color.a != 255) {
            lay_over_row(row, shown.width, color);
        } else if (row == first) {
            std::fill_n(row, shown.width, color);
        } else {
            std::copy_n(first, shown.width, row);
        }
    }
}

void draw_line(const Clipped_Target& target, Point from, Point to, Color color) {
    const int width = std::abs(to.x - from.x);
    const int height = std::abs(to.y - from.y);
    const bool is_flat = width >= height;
    const Point way{to.x < from.x ? -1 : 1, to.y < from.y ? -1 : 1};
    const int length = std::max(width, height);
    const int rise = std::min(width, height);
    int error = 2 * rise - length;
    for (int i = 0; i <= length; ++i) {
        if (target.clip.contains(from)) {
            lay_over(target.pixels.row(from.y)[from.x], color);
        }
        const bool steps_aside = error >= 0;
        error += 2 * (steps_aside ? rise - length : rise);
        from.x += is_flat || steps_aside ? way.x : 0;
        from.y += !is_flat || steps_aside ? way.y : 0;
    }
}

void draw_image(const Clipped_Target& target, const Image& image, const Rectangle& source,
                const Rectangle& destination) {
    if (source.is_empty() || destination.is_empty()) {
        return;
    }
    if (source.width != destination.width || source.height != destination.height) {
        draw_stretched(target, image, source, destination);
        return;
    }
    const Rectangle shown = intersection(destination, target.clip);
    const Point offset{source.x - destination.x, source.y - destination.y};
    for (int y = shown.y; y < shown.bottom(); ++y) {
        copy_row(image.row(y + offset.y) + shown.x + offset.x, shown.width, target.pixels.row(y) + shown.x,
                 image.is_opaque);
    }
}

} // namespace quadrelle
