#include "bench_support.h"

#include "app/documents.h"
#include "app/editor.h"
#include "canvas/canvas_view.h"

#include <ctime>

namespace quadrelle {

double bench::seconds_since(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double bench::thread_seconds() {
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

void bench::show_tile(Canvas_Case canvas) {
    editor->documents().new_document({canvas.tile_edge, canvas.tile_edge});
    Tile& tile = *editor->canvas().tile();
    for (int i = 0; i < tile.pixel_count(); ++i) {
        tile.set_pixel_at(i, {i * 7 % 256, i * 31 % 256, i * 3 % 256, i % 5 == 0 ? 128 : 255});
    }
    editor->canvas().set_pixel_size(canvas.pixel_size);
    editor->canvas().centre();
}

} // namespace quadrelle
