#pragma once

// A picture that floats over a tile until it is plotted. It may hang over the tile's edges.

#include "base/geometry.h"
#include "pixels/shared_picture.h"
#include "selection/selection.h"
#include "tools/drawing_target.h"

#include <optional>

namespace quadrelle {

// A colour laid over another one: an opaque one hides it, a transparent one leaves it.
[[nodiscard]] Color laid_over(Color color, Color below);

// How many times as wide and as high.
struct Factors {
    int x = 1;
    int y = 1;

    bool operator==(const Factors&) const = default;
};

// How a picture came from the pixels that were taken: scaled first, and then turned clockwise.
struct Paste_Shape {
    Shared_Picture taken;
    Factors factors = {};
    int degrees = 0; // 0 to 359
};

struct Floating_Paste {
    Shared_Picture picture;                // transparent where it leaves what is below
    Tile_Point position;                   // of its top left corner in the tile
    std::optional<Paste_Shape> shape = {}; // none for a picture that is as it was taken

    // Returns none outside the picture; what is there counts as transparent.
    [[nodiscard]] std::optional<Color> pixel_over(Tile_Point tile_pixel) const;
    // Also where it is transparent.
    [[nodiscard]] bool contains(Tile_Point tile_pixel) const {
        return !picture->is_outside(tile_pixel.x - position.x, tile_pixel.y - position.y);
    }
    // Returns where it lies in the tile, cut to it.
    [[nodiscard]] Selection area(Size tile) const;
    void plot(Drawing_Target& target) const;

    // Looks the same, and lies in the same place.
    [[nodiscard]] bool operator==(const Floating_Paste& other) const {
        return position == other.position && picture.same_pixels(other.picture);
    }
};

// Returns a copy of the selected pixels, in place. The selection is not empty.
[[nodiscard]] Floating_Paste lifted(const Tile& tile, const Selection& selection);

// Makes the selected pixels transparent.
void clear_selected(Tile& tile, const Selection& selection);

// Every pixel that is not transparent takes the colour.
void fill_opaque(Tile& picture, Color color);
// Returns the picture softened as a tile is, with its own alpha: its edges do not fade into what is not
// there.
[[nodiscard]] Tile softened(const Tile& picture);

} // namespace quadrelle
