#pragma once

// What the benchmarks share: a clock, and a canvas with something to draw.

#include <chrono>

namespace quadrelle::bench {

using Clock = std::chrono::steady_clock;

[[nodiscard]] double seconds_since(Clock::time_point start);
// The processor time that this thread has taken so far: others may take its place meanwhile.
[[nodiscard]] double thread_seconds();

struct Canvas_Case {
    int tile_edge;
    int pixel_size;
};

// Opens a set of one tile, many-coloured and translucent here and there, in the middle of the canvas.
void show_tile(Canvas_Case canvas);

} // namespace quadrelle::bench
