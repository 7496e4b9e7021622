#pragma once

// What floats in view over the tile, and which colours are seen there.

#include "selection/work_area.h"
#include "tools/tool_state.h"

#include <optional>

namespace quadrelle {

// Something floats, the tool in use shows it, and no selection takes its place; else null.
[[nodiscard]] inline const Floating_Paste* paste_in_view(const Work_Area& work, const Tool_State& tools) {
    const bool is_in_view = work.paste() && !work.has_selection() && tools.shows_floating_paste();
    return is_in_view ? &*work.paste() : nullptr;
}

// Returns the pixel of the tile, or what floats over it.
[[nodiscard]] inline Color seen_pixel(const Tile& tile, Tile_Point pixel, const Floating_Paste* paste) {
    const Color below = tile.get_pixel(pixel.x, pixel.y);
    const std::optional<Color> above = paste == nullptr ? std::nullopt : paste->pixel_over(pixel);
    return above ? laid_over(*above, below) : below;
}

} // namespace quadrelle
