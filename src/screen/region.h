#pragma once

// A part of the window as a grid of small squares, each of which belongs to it or does not.

#include "base/geometry.h"

#include <cstdint>
#include <vector>

namespace quadrelle {

class Region {
public:
    // Empty.
    explicit Region(Size window);

    void clear();
    // What lies outside of the window is left out.
    void add(const Rectangle& area);
    // Rectangles that share no pixel and together make up all squares of the region.
    [[nodiscard]] std::vector<Rectangle> rectangles() const;

private:
    Size window_;
    Size squares_;
    std::vector<std::uint8_t> is_inside_; // row by row
};

} // namespace quadrelle
