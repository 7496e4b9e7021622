#include "tools/pens.h"

#include "tools/line.h"

#include <algorithm>

namespace quadrelle {

namespace {

// Columns or rows of a brush, the end not included.
struct Range {
    int first = 0;
    int end = 0;
};

// Those that lie on the tile.
Range covered(int corner, int brush_length, int tile_length) {
    const std::int64_t far_corner = corner;
    const std::int64_t longest = brush_length;
    return {static_cast<int>(std::clamp<std::int64_t>(-far_corner, 0, longest)),
            static_cast<int>(std::clamp<std::int64_t>(tile_length - far_corner, 0, longest))};
}

// Calls visit(column of the brush, row of the brush, pixel of the tile) for all of the brush's rectangle that
// lies on the tile.
template <typename Visit>
void for_each_covered(const Drawing_Target& target, Size brush, Tile_Point corner, Visit visit) {
    const Range columns = covered(corner.x, brush.width, target.size().width);
    const Range rows = covered(corner.y, brush.height, target.size().height);
    for (int y = rows.first; y < rows.end; ++y) {
        for (int x = columns.first; x < columns.end; ++x) {
            visit(x, y, Tile_Point{corner.x + x, corner.y + y});
        }
    }
}

Color remembered(Color pixel, Tile_Point position, const Tile* history) {
    const bool has_pixel = history != nullptr && !history->is_outside(position.x, position.y);
    return has_pixel ? history->get_pixel(position.x, position.y) : pixel;
}

void apply_ink(Drawing_Target& target, Tile_Point position, Color color, const Ink& ink) {
    const Color pixel = target.get(position);
    switch (ink.operation) {
    case Pixel_Operation::paint: target.plot(position, color); break;
    case Pixel_Operation::lighten: target.plot(position, lightened(pixel, ink.lightness_mode, 1.0)); break;
    case Pixel_Operation::darken: target.plot(position, lightened(pixel, ink.lightness_mode, -1.0)); break;
    case Pixel_Operation::colorize: target.plot(position, colorized(pixel, color, ink.colorize_type)); break;
    case Pixel_Operation::history: target.plot(position, remembered(pixel, position, ink.history)); break;
    }
}

void apply_pen(Drawing_Target& target, const Pen& pen, Tile_Point corner) {
    if (pen.mode == Pen_Mode::pattern) {
        apply_pattern(target, pen.brush, corner, corner, pen.ink);
    } else {
        apply_brush(target, pen.brush, corner, pen.ink);
    }
}

Tile_Point corner_of(const Pen& pen, Tile_Point position) {
    return pen.mode == Pen_Mode::offset ? snapped_to_grid(position, pen.brush.size()) : position;
}

} // namespace

void apply_brush(Drawing_Target& target, const Brush& brush, Tile_Point corner, const Ink& ink) {
    for_each_covered(target, brush.size(), corner, [&](int x, int y, Tile_Point position) {
        if (const std::optional<Color> color = brush.pixel(x, y)) {
            apply_ink(target, position, ink.color.value_or(*color), ink);
        }
    });
}

void apply_pattern(Drawing_Target& target, const Brush& brush, Tile_Point corner, Tile_Point origin,
                   const Ink& ink) {
    for_each_covered(target, brush.size(), corner, [&](int x, int y, Tile_Point position) {
        const std::optional<Color> color =
            brush.wallpaper_pixel(std::int64_t{origin.x} + x, std::int64_t{origin.y} + y);
        if (color) {
            apply_ink(target, position, ink.color.value_or(*color), ink);
        }
    });
}

Tile_Point snapped_to_grid(Tile_Point position, Size cell) {
    return {cell.width * (position.x / cell.width), cell.height * (position.y / cell.height)};
}

void draw_segment(Drawing_Target& target, const Pen& pen, Tile_Point from, Tile_Point to,
                  Segment_Start start) {
    std::optional<Tile_Point> last;
    if (start == Segment_Start::left_out) {
        last = corner_of(pen, from);
    }
    walk_line(from, to, [&](Tile_Point position) {
        const Tile_Point corner = corner_of(pen, position);
        if (corner != last) {
            apply_pen(target, pen, corner);
            last = corner;
        }
    });
}

void smudge(Drawing_Target& target, const Brush& brush, Tile_Point corner, Tile_Point source_corner) {
    for_each_covered(target, brush.size(), corner, [&](int x, int y, Tile_Point position) {
        const Tile_Point source{source_corner.x + x, source_corner.y + y};
        if (brush.pixel(x, y) && target.contains(source)) {
            target.plot(position, mixed_half_and_half(target.get(source), target.get(position)));
        }
    });
}

void smudge_segment(Drawing_Target& target, const Brush& brush, Tile_Point from, Tile_Point to) {
    Tile_Point last = from;
    walk_line(from, to, [&](Tile_Point position) {
        if (position != last) {
            smudge(target, brush, position, last);
            last = position;
        }
    });
}

} // namespace quadrelle
