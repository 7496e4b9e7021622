// How long each step takes where there is very much: a set of 100,000 tiles of one pixel, and 256 open sets.

#include "bench_support.h"

#include "app/documents.h"
#include "app/editor.h"
#include "canvas/canvas_view.h"
#include "screen/events.h"

#include <benchmark/benchmark.h>

#include <SDL3/SDL.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

namespace quadrelle::bench {

namespace {

// The longest of some runs, with the frame after it, in milliseconds.
double slowest(int runs, const std::function<void(int run)>& step) {
    double longest = 0;
    for (int run = 0; run < runs; ++run) {
        const double start = thread_seconds();
        step(run);
        editor->redraw(Present::yes);
        longest = std::max(longest, thread_seconds() - start);
    }
    return 1000 * longest;
}

void draw_and_record(int run) {
    Tileset_Document& document = editor->documents().current();
    document.tileset().current_tile()->set_pixel_at(0, {run, 100, 100});
    document.record(Command::pen, {}, {});
    editor->documents().mark_changed();
}

std::string file_of_many_tiles(unsigned count) {
    std::string path = (std::filesystem::temp_directory_path() / "quadrelle_bench_many.qdl").string();
    std::string bytes("QDL\n\0\1\1", 7);
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(count >> shift);
    }
    for (unsigned i = 0; i < 4 * count; ++i) {
        bytes += static_cast<char>(i * 37U);
    }
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

// Each step is a counter of its own, in milliseconds; the longest of them is the time.
void many_tiles(benchmark::State& state) {
    const std::string path = file_of_many_tiles(static_cast<unsigned>(state.range(0)));
    Documents& documents = editor->documents();
    for (auto _ : state) {
        double longest = 0;
        const auto count = [&](const char* name, int runs, const std::function<void(int run)>& step) {
            const double milliseconds = slowest(runs, step);
            state.counters[name] = milliseconds;
            longest = std::max(longest, milliseconds);
        };
        count("load", 1, [&](int) { documents.load_document(path); });
        count("stroke", 20, draw_and_record);
        count("next", 20, [](int) { editor->execute(Command::next_tile); });
        count("strip_end", 1, [](int) { editor->execute(Command::forward_strip); });
        count("strip_back", 20, [](int) { editor->execute(Command::previous_tile_strip); });
        count("undo", 5, [](int) { editor->execute(Command::undo); });
        count("delete", 1, [](int) { editor->execute(Command::delete_tile); });
        count("save", 1, [&](int) { documents.save_document(path); });
        count("close", 1, [&](int) { documents.close_document(); });
        state.SetIterationTime(longest / 1000);
    }
    std::filesystem::remove(path);
}

// The longest of going to each of so many changed sets, with the frame after it.
void change_set(benchmark::State& state) {
    Documents& documents = editor->documents();
    while (documents.count() < state.range(0)) {
        documents.new_document({24, 24});
        documents.mark_changed();
    }
    for (auto _ : state) {
        state.counters["stroke"] = slowest(20, draw_and_record);
        state.SetIterationTime(
            slowest(static_cast<int>(state.range(0)), [&](int) { documents.go_to_next(); }) / 1000);
    }
}

BENCHMARK(many_tiles)->Arg(100'000)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(change_set)->Arg(256)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quadrelle::bench
