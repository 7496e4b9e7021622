#pragma once

// How the pixels of an area change places when it is turned or mirrored. Knows no command.

#include "base/geometry.h"

namespace quadrelle {

class Tile;

struct Placement {
    // The pixel that comes to `pixel` of the area as it is afterwards; both from the area's corner.
    Tile_Point (*origin)(Tile_Point pixel, Size area);
    bool swaps_sides; // the area becomes as wide as it was high

    // Whether the area stays where it is.
    [[nodiscard]] constexpr bool fits(Size area) const { return !swaps_sides || area.width == area.height; }
    [[nodiscard]] constexpr Size size_after(Size area) const {
        return swaps_sides ? Size{area.height, area.width} : area;
    }
};

inline constexpr Placement turned_right{[](Tile_Point pixel, Size area) {
                                            return Tile_Point{pixel.y, area.width - 1 - pixel.x};
                                        },
                                        true};
inline constexpr Placement turned_left{[](Tile_Point pixel, Size area) {
                                           return Tile_Point{area.height - 1 - pixel.y, pixel.x};
                                       },
                                       true};
inline constexpr Placement mirrored{[](Tile_Point pixel, Size area) {
                                        return Tile_Point{area.width - 1 - pixel.x, pixel.y};
                                    },
                                    false};
inline constexpr Placement flipped{[](Tile_Point pixel, Size area) {
                                       return Tile_Point{pixel.x, area.height - 1 - pixel.y};
                                   },
                                   false};

// `target` becomes the source placed anew. It is another tile, of the size that this takes.
void place(const Tile& source, Tile& target, const Placement& placement);
[[nodiscard]] Tile placed(const Tile& source, const Placement& placement);

} // namespace quadrelle
