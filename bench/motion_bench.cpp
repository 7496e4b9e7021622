// How long a motion takes that turns or moves a whole picture, without the frame that shows it, and a step of
// the history that holds a large one.

#include "bench_support.h"

#include "app/editor.h"
#include "canvas/canvas_view.h"
#include "canvas/stroke.h"
#include "panes/toolbox.h"
#include "tileset/undo_history.h"

#include <benchmark/benchmark.h>

#include <random>
#include <utility>

namespace quadrelle::bench {

namespace {

// Plays motions around the middle of the canvas.
void move_around(benchmark::State& state, Canvas_Action action) {
    Pointer_State pointer{500, 300, Mouse_Button::left};
    Stroke stroke(editor->canvas(), *find_stroke(action), pointer,
                  {toolbox->state(), {}, [](const auto&) {}});
    stroke.press({});
    int step = 0;
    for (auto _ : state) {
        ++step;
        const float x = 420.0F + static_cast<float>(step * 37 % 201);
        const float y = 200.0F + static_cast<float>(step * 23 % 203);
        stroke.move_to({x, y, Mouse_Button::left}, {});
    }
}

using Painted = void (*)(Tile& tile);

void many_colored(Tile& /*tile*/) {}

// As a shape that was drawn: large areas of one colour, and a background that is transparent.
void disc(Tile& tile) {
    for (int i = 0; i < tile.pixel_count(); ++i) {
        const int x = i % tile.width() - 127;
        const int y = i / tile.width() - 127;
        const int distance = x * x + y * y;
        tile.set_pixel_at(i, distance < 6000    ? Color(200, 30, 40)
                             : distance < 12000 ? Color()
                                                : Color(0, 0, 0, 0));
    }
}

void dithered(Tile& tile) {
    for (int i = 0; i < tile.pixel_count(); ++i) {
        tile.set_pixel_at(i, (i % tile.width() + i / tile.width()) % 2 == 0 ? Color() : Color(255, 255, 255));
    }
}

// Nothing that is known of one pixel tells anything of the next.
void two_colored(Tile& tile) {
    std::mt19937 random(1);
    for (int i = 0; i < tile.pixel_count(); ++i) {
        tile.set_pixel_at(i, random() % 2 == 0 ? Color() : Color(255, 255, 255));
    }
}

void rotate_motion(benchmark::State& state, Painted paint) {
    show_tile({255, 3});
    editor->canvas().work_area().drop_paste();
    paint(*editor->canvas().tile());
    move_around(state, Canvas_Action::free_rotate);
}

void float_large_paste(int edge) {
    show_tile({255, 3});
    Tile picture(edge, edge);
    for (int i = 0; i < picture.pixel_count(); ++i) {
        picture.set_pixel_at(i, {i * 7 % 256, i * 31 % 256, i * 3 % 256, i % 5 == 0 ? 128 : 255});
    }
    editor->canvas().work_area().float_paste({std::move(picture), {-edge / 2, -edge / 2}});
}

void paste_motion(benchmark::State& state) {
    float_large_paste(static_cast<int>(state.range(0)));
    move_around(state, Canvas_Action::work_selection);
    editor->canvas().work_area().drop_paste();
}

// With a state in the history that is forgotten for it.
void paste_step(benchmark::State& state) {
    float_large_paste(static_cast<int>(state.range(0)));
    for (int i = 0; i < Undo_History::default_capacity; ++i) {
        editor->execute(Command::change_tile);
    }
    for (auto _ : state) {
        editor->execute(Command::change_tile);
    }
    editor->canvas().work_area().drop_paste();
}

BENCHMARK_CAPTURE(rotate_motion, many_colored, many_colored)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(rotate_motion, disc, disc)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(rotate_motion, dithered, dithered)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(rotate_motion, two_colored, two_colored)->Unit(benchmark::kMicrosecond);
BENCHMARK(paste_motion)->Arg(4096)->Unit(benchmark::kMicrosecond);
BENCHMARK(paste_step)->Arg(4096)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quadrelle::bench
