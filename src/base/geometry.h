#pragma once

// Points and rectangles in window pixels, and the distinct type for pixels of a tile.
// Only the canvas view converts between the two.

#include <algorithm>

namespace quadrelle {

struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
};

// A pixel of a tile; it may lie outside of the tile.
struct Tile_Point {
    int x = 0;
    int y = 0;

    bool operator==(const Tile_Point&) const = default;
};

// A place in a tile, in its pixels from its corner, which may lie within a pixel.
struct Tile_Position {
    double x = 0;
    double y = 0;

    bool operator==(const Tile_Position&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;

    bool operator==(const Size&) const = default;
};

// A rectangle contains its left and top edges, not its right and bottom edges.
struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rectangle&) const = default;

    [[nodiscard]] constexpr int right() const { return x + width; }
    [[nodiscard]] constexpr int bottom() const { return y + height; }
    [[nodiscard]] constexpr bool contains(Point point) const {
        return point.x >= x && point.y >= y && point.x < right() && point.y < bottom();
    }
    [[nodiscard]] constexpr bool encloses(const Rectangle& other) const {
        return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
    }
    [[nodiscard]] constexpr bool is_empty() const { return width <= 0 || height <= 0; }
    // Returns it shrunk on all four sides; a negative amount grows it.
    [[nodiscard]] constexpr Rectangle inset(int amount) const {
        return {x + amount, y + amount, width - 2 * amount, height - 2 * amount};
    }
};

// Returns what both share; empty where they do not meet.
[[nodiscard]] constexpr Rectangle intersection(const Rectangle& one, const Rectangle& other) {
    const int x = std::max(one.x, other.x);
    const int y = std::max(one.y, other.y);
    return {x, y, std::max(std::min(one.right(), other.right()) - x, 0),
            std::max(std::min(one.bottom(), other.bottom()) - y, 0)};
}

// Returns the smallest rectangle around both; an empty one adds nothing.
[[nodiscard]] constexpr Rectangle bounds_of(const Rectangle& one, const Rectangle& other) {
    if (one.is_empty() || other.is_empty()) {
        return one.is_empty() ? other : one;
    }
    const int x = std::min(one.x, other.x);
    const int y = std::min(one.y, other.y);
    return {x, y, std::max(one.right(), other.right()) - x, std::max(one.bottom(), other.bottom()) - y};
}

// Returns the rectangle of that size in the middle of the area, both halves rounded toward zero.
[[nodiscard]] constexpr Rectangle centred(Size size, const Rectangle& area) {
    return {area.x + (area.width - size.width) / 2, area.y + (area.height - size.height) / 2, size.width,
            size.height};
}

} // namespace quadrelle
