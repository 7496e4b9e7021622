// How long files take: saving and loading a set, and listing a folder.

#include "bench_support.h"

#include "base/folder_listing.h"
#include "base/platform_files.h"
#include "tileset/tileset_file.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

namespace quadrelle::bench {

namespace {

void fill(Tileset& tileset) {
    while (tileset.add_tile()) {
        Tile& tile = *tileset.current_tile();
        for (int i = 0; i < tile.pixel_count(); ++i) {
            tile.set_pixel_at(i, {tileset.count() % 256, i * 31 % 256, i * 3 % 256, i % 5 == 0 ? 128 : 255});
        }
    }
    tileset.select(0);
}

Tileset full_tileset(int tile_edge) {
    Tileset tileset({tile_edge, tile_edge});
    fill(tileset);
    return tileset;
}

std::string scratch_path(const std::string& ending) {
    const std::string name = "quadrelle-bench-" + std::to_string(getpid()) + ending;
    return (std::filesystem::temp_directory_path() / name).string();
}

// The moments before each step of a save; the last three steps are the flush to the disk, closing and
// replacing.
std::vector<Clock::time_point>& save_steps() {
    static std::vector<Clock::time_point> steps;
    return steps;
}

bool note_save_step() {
    save_steps().push_back(Clock::now());
    return false;
}

// Without the flush to the disk, which is a counter of its own.
void save_set(benchmark::State& state) {
    const Tileset tileset = full_tileset(static_cast<int>(state.range(0)));
    const std::string path = scratch_path(".qdl");
    double flushes = 0;
    set_file_fault_hook(note_save_step);
    for (auto _ : state) {
        save_steps().clear();
        const Clock::time_point start = Clock::now();
        if (save_tileset(tileset, path) < 0) {
            state.SkipWithError("The set was not saved.");
            break;
        }
        const double total = seconds_since(start);
        const std::vector<Clock::time_point>& steps = save_steps();
        const std::chrono::duration<double> flush = steps.at(steps.size() - 2) - steps.at(steps.size() - 3);
        flushes += flush.count();
        state.SetIterationTime(total - flush.count());
    }
    set_file_fault_hook(nullptr);
    remove_file(path);
    state.counters["flush_ms"] = benchmark::Counter(flushes * 1000, benchmark::Counter::kAvgIterations);
}

void load_set(benchmark::State& state) {
    const std::string path = scratch_path(".qdl");
    if (save_tileset(full_tileset(static_cast<int>(state.range(0))), path) < 0) {
        state.SkipWithError("The set was not saved.");
    }
    for (auto _ : state) {
        if (load_tileset(path).tileset->count() != default_tile_limit) {
            state.SkipWithError("The set was not loaded.");
            break;
        }
    }
    remove_file(path);
}

void list_folder(benchmark::State& state) {
    const std::filesystem::path folder = scratch_path("");
    std::filesystem::create_directory(folder);
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        std::ofstream(folder / (std::to_string(i * 7919 % state.range(0)) + ".qdl"));
    }
    for (auto _ : state) {
        Folder_Listing listing("qdl");
        if (!listing.open(folder.string()) || std::ssize(listing.rows()) <= state.range(0)) {
            state.SkipWithError("The folder was not listed.");
            break;
        }
    }
    std::filesystem::remove_all(folder);
}

BENCHMARK(save_set)->Arg(24)->Arg(64)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(load_set)->Arg(24)->Arg(64)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(list_folder)->Arg(3000)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quadrelle::bench
