#pragma once

// Cells in columns and rows. Knows neither tiles nor the window.

#include "base/geometry.h"
#include "map/map_cell.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace quadrelle {

constexpr int largest_map_edge = 1000;

// A cell of a map; it may lie outside of the map.
struct Map_Point {
    int x = 0;
    int y = 0;

    bool operator==(const Map_Point&) const = default;
};

// How many columns and rows are added at each side; fewer than none are taken away.
struct Map_Sides {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const Map_Sides&) const = default;
};

[[nodiscard]] constexpr bool is_map_size(Size size) {
    return size.width >= 1 && size.height >= 1 && size.width <= largest_map_edge &&
           size.height <= largest_map_edge;
}

[[nodiscard]] constexpr Size resized(Size size, const Map_Sides& sides) {
    return {size.width + sides.left + sides.right, size.height + sides.top + sides.bottom};
}

// A copy shares its cells with the map until one of both is changed: another thread may read it meanwhile.
class Tile_Map {
public:
    // Every cell is empty. The size must be one of a map.
    explicit Tile_Map(Size size);

    [[nodiscard]] Size size() const { return size_; }
    [[nodiscard]] Rectangle area() const { return {0, 0, size_.width, size_.height}; }
    [[nodiscard]] bool contains(Map_Point point) const { return area().contains({point.x, point.y}); }
    // Nothing lies outside.
    [[nodiscard]] Map_Cell at(Map_Point point) const {
        return contains(point) ? (*cells_)[offset(point)] : Map_Cell();
    }
    // Nothing happens outside.
    void set(Map_Point point, Map_Cell cell) {
        if (contains(point)) {
            own_cells()[offset(point)] = cell;
        }
    }
    // Row by row from the top.
    [[nodiscard]] std::span<const Map_Cell> cells() const { return *cells_; }
    [[nodiscard]] std::span<Map_Cell> cells() { return own_cells(); }
    [[nodiscard]] std::span<const Map_Cell> row(int y) const {
        return std::as_const(*this).cells().subspan(offset({0, y}), static_cast<std::size_t>(size_.width));
    }

    // The size that comes of it must be one of a map.
    [[nodiscard]] Tile_Map resized(const Map_Sides& sides) const;

    bool operator==(const Tile_Map& other) const {
        return size_ == other.size_ && (cells_ == other.cells_ || *cells_ == *other.cells_);
    }

private:
    using Cells = std::vector<Map_Cell>;

    // Whoever gives the cells back on another thread has read them before.
    [[nodiscard]] Cells& own_cells() {
        if (cells_.use_count() > 1) {
            cells_ = std::make_shared<Cells>(*cells_);
        }
        std::atomic_thread_fence(std::memory_order_acquire);
        return *cells_;
    }
    [[nodiscard]] std::size_t offset(Map_Point point) const {
        return static_cast<std::size_t>(point.y) * static_cast<std::size_t>(size_.width) +
               static_cast<std::size_t>(point.x);
    }

    Size size_;
    std::shared_ptr<Cells> cells_;
};

} // namespace quadrelle
