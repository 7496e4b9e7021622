#pragma once

// Which part of a map is seen, and how large. Knows no window: its points are pixels from the corner of the
// view.

#include "base/geometry.h"
#include "map/tile_map.h"

#include <array>
#include <cstddef>

namespace quadrelle {

// A pixel of a tile is so large.
struct Map_Scale {
    int numerator = 1;
    int denominator = 1;

    bool operator==(const Map_Scale&) const = default;
};

constexpr std::array map_scales = std::to_array<Map_Scale>(
    {{1, 4}, {1, 3}, {1, 2}, {1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}, {8, 1}});
constexpr std::size_t real_size_scale = 3;
static_assert(map_scales[real_size_scale] == Map_Scale{1, 1});

class Map_Camera {
public:
    Map_Camera(Size view, Size tile) : view_(view), tile_(tile) {}

    [[nodiscard]] Size view() const { return view_; }
    [[nodiscard]] Size tile() const { return tile_; }
    [[nodiscard]] Map_Scale scale() const { return map_scales.at(scale_); }
    // Returns the pixel of the map, or the cell, that is seen there.
    [[nodiscard]] Point pixel_at(Point point) const;
    [[nodiscard]] Map_Point cell_at(Point point) const;
    // Returns where cells are seen.
    [[nodiscard]] Rectangle area_of(const Rectangle& cells) const;
    // Returns the cells of a map of that size that are seen.
    [[nodiscard]] Rectangle seen_cells(Size map) const;

    // False at the smallest and the largest scale. What is seen at that point stays there.
    bool zoom(int steps, Point about);
    void move(Point by) { origin_ = {origin_.x + by.x, origin_.y + by.y}; }
    // A map that is larger than the view shows its middle.
    void centre(Size map);
    void centre_on(Map_Point cell);
    // Lets some of the map stay in view.
    void keep_in_view(Size map);

    bool operator==(const Map_Camera&) const = default;

private:
    [[nodiscard]] int scaled_up(int pixels) const;

    Size view_;
    Size tile_;
    std::size_t scale_ = real_size_scale;
    Point origin_; // of the map's first pixel
};

} // namespace quadrelle
