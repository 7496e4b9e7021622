#include "canvas/paste_handles.h"

#include "color/standard_colors.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

constexpr int edge = paste_handle_edge;
constexpr int gap = 3;      // at least between two at the corners: as much as the smallest cell
constexpr int distance = 4; // of the one above from those below it

using Mask = std::array<std::string_view, edge>;

constexpr Mask square{
    "#########", "#.......#", "#.......#", "#.......#", "#.......#",
    "#.......#", "#.......#", "#.......#", "#########",
};
constexpr Mask disc{
    "  #####  ", " ##...## ", "##.....##", "#.......#", "#.......#",
    "#.......#", "##.....##", " ##...## ", "  #####  ",
};

// Where the first and the last handle along one side begin: before and behind what floats, which goes from
// `start` to `end`, but in the viewport. The one that has to come into it pushes the other one on.
std::pair<int, int> around(int start, int end, int viewport) {
    const int last_place = viewport - edge;
    return {std::clamp(start - edge, 0, last_place - edge - gap), std::clamp(end, edge + gap, last_place)};
}

// Above those at the corners, else below them, else between them.
int turning_place(int top, int bottom, int viewport) {
    if (top - distance - edge >= 0) {
        return top - distance - edge;
    }
    const bool has_room_below = bottom + 2 * edge + distance <= viewport;
    return (has_room_below ? bottom : top) + edge + distance;
}

Rectangle stem_between(const Rectangle& handle, const Rectangle& floating) {
    const int x = handle.x + edge / 2;
    const bool is_above = handle.bottom() <= floating.y;
    const int top = is_above ? handle.bottom() : floating.bottom();
    const int bottom = is_above ? floating.y : handle.y;
    return bottom > top ? Rectangle{x, top, 1, bottom - top} : Rectangle{};
}

void set_pixel(const Pixel_Rows& target, int x, int y, Color color) {
    if (x >= 0 && y >= 0 && x < target.size.width && y < target.size.height) {
        target.row(y)[x] = color;
    }
}

// In black and its other colour, one of which stands out wherever it lies.
void paint_mask(const Mask& mask, const Rectangle& area, Color fill, const Pixel_Rows& target) {
    for (int y = 0; y < edge; ++y) {
        for (int x = 0; x < edge; ++x) {
            const char mark = mask.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x));
            if (mark != ' ') {
                set_pixel(target, area.x + x, area.y + y, mark == '#' ? Color(0, 0, 0) : fill);
            }
        }
    }
}

// Dashed in both colours.
void paint_stem(const Rectangle& stem, const Pixel_Rows& target) {
    for (int i = 0; i < stem.height; ++i) {
        set_pixel(target, stem.x, stem.y + i, i % 4 < 2 ? Color(0, 0, 0) : Color(255, 255, 255));
    }
}

} // namespace

Paste_Handles handles_around(const Rectangle& floating, Size viewport) {
    const auto [left, right] = around(floating.x, floating.right(), viewport.width);
    const auto [top, bottom] = around(floating.y, floating.bottom(), viewport.height);
    const int middle = std::clamp(floating.x + (floating.width - edge) / 2, 0, viewport.width - edge);
    const Rectangle turning{middle, turning_place(top, bottom, viewport.height), edge, edge};
    return {{{{left, top, edge, edge},
              {right, top, edge, edge},
              {left, bottom, edge, edge},
              {right, bottom, edge, edge},
              turning}},
            stem_between(turning, floating)};
}

Paste_Handle handle_at(const Paste_Handles& handles, Point point) {
    const auto area =
        std::ranges::find_if(handles.areas, [point](const Rectangle& each) { return each.contains(point); });
    return static_cast<Paste_Handle>(area - handles.areas.begin());
}

Paste_Handles seen_from(Point start, Paste_Handles handles) {
    const auto move = [start](Rectangle& area) {
        area.x -= start.x;
        area.y -= start.y;
    };
    std::ranges::for_each(handles.areas, move);
    move(handles.stem);
    return handles;
}

Rectangle area_of(const Paste_Handles& handles) {
    Rectangle area = handles.stem;
    for (const Rectangle& each : handles.areas) {
        area = bounds_of(area, each);
    }
    return area;
}

void paint_handles(const Paste_Handles& handles, const Pixel_Rows& target) {
    paint_stem(handles.stem, target);
    for (std::size_t i = 0; i < paste_handle_count; ++i) {
        const auto handle = static_cast<Paste_Handle>(i);
        paint_mask(handle == Paste_Handle::turn ? disc : square, handles.areas.at(i),
                   standard_color(handle == handles.lit ? Standard_Color::highlight : Standard_Color::white),
                   target);
    }
}

} // namespace quadrelle
