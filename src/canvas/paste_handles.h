#pragma once

// The handles around what floats on the canvas: one at each of its corners, and one above it. Where they lie,
// which one is at a point, and what they look like. Everything is in pixels of the picture that they are
// drawn in. Knows no tool.

#include "base/geometry.h"
#include "color/pixel_rows.h"

#include <array>
#include <cstddef>

namespace quadrelle {

enum class Paste_Handle : int { top_left, top_right, bottom_left, bottom_right, turn, none };

constexpr std::size_t paste_handle_count = 5;
constexpr int paste_handle_edge = 9;

struct Paste_Handles {
    // What a press hits, by handle. No two of them overlap.
    std::array<Rectangle, paste_handle_count> areas;
    // From the handle above to what floats; empty where that lies elsewhere.
    Rectangle stem;
    Paste_Handle lit = Paste_Handle::none;

    bool operator==(const Paste_Handles&) const = default;
};

// All handles lie inside the viewport, however little of what floats in that rectangle does; beside it where
// there is room.
[[nodiscard]] Paste_Handles handles_around(const Rectangle& floating, Size viewport);
[[nodiscard]] Paste_Handle handle_at(const Paste_Handles& handles, Point point);
// Returns the same for a picture that begins there.
[[nodiscard]] Paste_Handles seen_from(Point start, Paste_Handles handles);
// Returns the smallest rectangle around all of them.
[[nodiscard]] Rectangle area_of(const Paste_Handles& handles);
// What lies outside the picture is left out.
void paint_handles(const Paste_Handles& handles, const Pixel_Rows& target);

} // namespace quadrelle
