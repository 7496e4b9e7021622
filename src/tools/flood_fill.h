#pragma once

// The area of one colour around a pixel, and filling it.

#include "base/geometry.h"
#include "color/color.h"
#include "tools/brush.h"
#include "tools/drawing_target.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quadrelle {

// Deliberately limited: what lies more than this many steps, less one, from the seed is not reached.
constexpr std::int32_t flood_wave_limit = 9999;

enum class Flood_Bounds : std::int32_t { selection, whole_tile };

// The pixels that a flood reached, of a grid as large as the tile.
class Flood_Area {
public:
    // Finds the area of the seed's colour around it, through the four sides of pixels; it is empty when the
    // seed is outside the tile or the bounds. Pixels that differ only in alpha differ: an opaque black line
    // holds where all around it is transparent black. Of two that are fully transparent nothing else counts.
    Flood_Area(const Drawing_Target& target, Tile_Point seed, Flood_Bounds bounds);

    // Calls visit(Tile_Point) row by row.
    template <typename Visit>
    void for_each(Visit visit) const {
        Tile_Point position;
        for (const std::int32_t cell : cells_) {
            if (is_reached(cell)) {
                visit(position);
            }
            position = position.x + 1 < size_.width ? Tile_Point{position.x + 1, position.y}
                                                    : Tile_Point{0, position.y + 1};
        }
    }

private:
    // A cell is 0 where not reached, else the number of the wave that reached it, the seed's being 1; above
    // the limit it is blocked.
    [[nodiscard]] static bool is_reached(std::int32_t cell) { return cell >= 1 && cell <= flood_wave_limit; }
    [[nodiscard]] bool is_inside(Tile_Point position) const;
    void flood(Tile_Point seed);

    Size size_;
    std::vector<std::int32_t> cells_;
};

void flood_fill(Drawing_Target& target, Tile_Point seed, Color color,
                Flood_Bounds bounds = Flood_Bounds::selection);

// Fills with a wallpaper of brushes that has one corner on the seed. Pixels where the brush is clear stay as
// they are; a given colour is painted instead of the brush's own.
void flood_fill_with_brush(Drawing_Target& target, Tile_Point seed, const Brush& brush,
                           std::optional<Color> color = std::nullopt);

} // namespace quadrelle
