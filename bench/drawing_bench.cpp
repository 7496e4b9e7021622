// How long drawing takes: fills, and what is dragged far beyond the tile.

#include "app/documents.h"
#include "app/editor.h"
#include "canvas/canvas_view.h"
#include "tools/flood_fill.h"
#include "tools/pens.h"
#include "tools/shapes.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace quadrelle::bench {

namespace {

constexpr Color floor_color(0, 0, 0);
constexpr Color wall_color(90, 90, 90);

int fill(Tile& tile, Color color) {
    Drawing_Target target(tile);
    flood_fill(target, {0, 0}, color);
    return static_cast<int>(std::ranges::count(tile.pixels(), color));
}

// Filled in turns with two colours, neither of which is there in the walls.
void fill_current_tile(benchmark::State& state, int area) {
    Tile& tile = *editor->canvas().tile();
    editor->redraw(Present::yes);
    bool is_filled = false;
    for (auto _ : state) {
        is_filled = !is_filled;
        if (fill(tile, is_filled ? Color(200, 30, 40) : floor_color) != area) {
            state.SkipWithError("The fill reached more or less than the area.");
            break;
        }
    }
}

void fill_plain(benchmark::State& state) {
    const int edge = static_cast<int>(state.range(0));
    editor->documents().new_document({edge, edge});
    fill_current_tile(state, edge * edge);
}

// One path of that many steps in the tile's largest size: along every second row, and down between them at
// either end in turns.
void carve_serpentine(Tile& tile, int steps) {
    tile.fill(wall_color);
    Tile_Point position{0, 0};
    int direction = 1;
    for (int step = 0; step <= steps; ++step) {
        tile.set_pixel(position.x, position.y, floor_color);
        const int next = position.x + direction;
        if (position.y % 2 == 0 && next >= 0 && next < tile.width()) {
            position.x = next;
        } else {
            ++position.y;
            direction = position.y % 2 == 0 ? -direction : direction;
        }
    }
}

void fill_serpentine(benchmark::State& state) {
    const int steps = static_cast<int>(state.range(0));
    editor->documents().new_document({255, 255});
    carve_serpentine(*editor->canvas().tile(), steps);
    fill_current_tile(state, steps + 1);
}

using Dragged = void (*)(Drawing_Target& target, Tile_Point from, Tile_Point to);

// The whole way is walked, although nearly all of it lies outside.
void drag_far_away(benchmark::State& state, Dragged draw) {
    Tile tile(255, 255);
    Drawing_Target target(tile);
    for (auto _ : state) {
        draw(target, {128, 128}, {20000, -20000});
        draw(target, {-20000, 20000}, {20000, -19000});
    }
}

void pen(Drawing_Target& target, Tile_Point from, Tile_Point to) {
    static const Brush disc = built_in_brush(Brush_Shape::disc, 5, floor_color);
    draw_segment(target, {disc, Pen_Mode::brush, {}}, from, to, Segment_Start::included);
}

void smudge_brush(Drawing_Target& target, Tile_Point from, Tile_Point to) {
    static const Brush disc = built_in_brush(Brush_Shape::disc, 5, floor_color);
    smudge_segment(target, disc, from, to);
}

void rectangle(Drawing_Target& target, Tile_Point from, Tile_Point to) {
    draw_shape(target, Canvas_Action::rectangle_filled_outline, from, to, {floor_color, wall_color});
}

void ellipse(Drawing_Target& target, Tile_Point from, Tile_Point to) {
    draw_shape(target, Canvas_Action::ellipse_filled_outline, from, to, {floor_color, wall_color});
}

BENCHMARK(fill_plain)->Arg(255)->Unit(benchmark::kMicrosecond);
BENCHMARK(fill_serpentine)->Arg(flood_wave_limit - 1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(drag_far_away, pen, pen)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(drag_far_away, smudge_brush, smudge_brush)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(drag_far_away, rectangle, rectangle)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(drag_far_away, ellipse, ellipse)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quadrelle::bench
