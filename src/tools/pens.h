#pragma once

// How brushes are laid onto a tile: one position at a time, or along a stroke's segment without gaps.

#include "base/geometry.h"
#include "color/color.h"
#include "tools/brush.h"
#include "tools/drawing_target.h"
#include "tools/pixel_operations.h"

#include <cstdint>
#include <optional>

namespace quadrelle {

enum class Pixel_Operation : std::int32_t { paint = 0, lighten = 1, darken = 2, colorize = 3, history = 5 };

// What happens to a pixel that the brush covers. It borrows the history image.
struct Ink {
    Pixel_Operation operation = Pixel_Operation::paint;
    // The colour that is painted, or colorized toward, instead of the brush's own.
    std::optional<Color> color;
    Lightness_Mode lightness_mode = Lightness_Mode::linear;
    Colorize_Type colorize_type = Colorize_Type::linear;
    // Without this tile, and outside of it, the operation `history` changes nothing.
    const Tile* history = nullptr;
};

// The brush's top left pixel lies on the corner.
void apply_brush(Drawing_Target& target, const Brush& brush, Tile_Point corner, const Ink& ink);

// Paints where the brush would lie, but from a wallpaper of brushes: the pixel on the corner is the brush's
// at the origin's remainder by the brush's size. An origin that moves with the corner keeps the wallpaper
// still on the tile.
void apply_pattern(Drawing_Target& target, const Brush& brush, Tile_Point corner, Tile_Point origin,
                   const Ink& ink);

// Returns the corner of the brush-sized cell around the position. It deliberately truncates toward zero, so
// that the cells on both sides of zero share their corner.
[[nodiscard]] Tile_Point snapped_to_grid(Tile_Point position, Size cell);

enum class Pen_Mode : std::int32_t { brush, pattern, offset };

// A pen borrows its brush.
struct Pen {
    const Brush& brush;
    Pen_Mode mode = Pen_Mode::brush;
    Ink ink;
};

// A segment that continues a stroke leaves its start out: that pixel had its turn at the end of the last
// segment, and lightening, darkening and colorizing it again would change it again.
enum class Segment_Start : std::int32_t { included, left_out };

// Applies the pen at every pixel of the line; in offset mode once for each cell that it enters.
void draw_segment(Drawing_Target& target, const Pen& pen, Tile_Point from, Tile_Point to,
                  Segment_Start start);

// Mixes every pixel that the brush covers half and half with the one that it would cover on the source
// corner; a pixel whose source is outside the tile stays. They go in brush order, each reading what earlier
// ones wrote: the colour is deliberately dragged through the brush.
void smudge(Drawing_Target& target, const Brush& brush, Tile_Point corner, Tile_Point source_corner);

// Drags colour along the line pixel by pixel, each from the pixel before; a single pixel stays.
void smudge_segment(Drawing_Target& target, const Brush& brush, Tile_Point from, Tile_Point to);

} // namespace quadrelle
