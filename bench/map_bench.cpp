// How long the largest map takes: a frame, a fill, opening, and the memory of all of it.

#include "map/map_file.h"
#include "map/map_strokes.h"
#include "screen/screen.h"
#include "tileset/tileset.h"
#include "views/map_layout.h"
#include "views/map_view.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>

namespace quadrelle::bench {

namespace {

constexpr Size largest{largest_map_edge, largest_map_edge};
constexpr Rectangle view = map_layout::view;

Tileset tiles_of(int edge) {
    Tileset tileset({edge, edge});
    std::mt19937 random(1);
    while (tileset.count() < 100) {
        tileset.add_tile();
        tileset.current_tile()->map_colours([&](Color) {
            return Color::from_word(static_cast<std::uint32_t>(random()) |
                                    (random() % 4 == 0 ? 0 : 0xff000000U));
        });
    }
    return tileset;
}

// Every third place is empty.
Tile_Map many_coloured_map() {
    Tile_Map map(largest);
    std::mt19937 random(2);
    for (Map_Cell& cell : map.cells()) {
        const unsigned bits = random() % 8;
        cell = random() % 3 == 0
                   ? Map_Cell()
                   : Map_Cell(static_cast<int>(random() % 100), {bits > 3, bits % 2 == 0, bits % 4 > 1});
    }
    return map;
}

// The picture of the map, each time moved by some pixels: all of it is another one. The arguments are the
// edge of a tile, and which of the scales.
void map_frame(benchmark::State& state) {
    const Tileset tileset = tiles_of(static_cast<int>(state.range(0)));
    const Edited_Map map(many_coloured_map());
    Map_View shown(map, tileset);
    Map_Camera camera({view.width, view.height}, tileset.tile_size());
    camera.centre(largest);
    camera.zoom(static_cast<int>(state.range(1)) - static_cast<int>(real_size_scale), {view.width / 2, 100});
    for (auto _ : state) {
        camera.move({7, 5});
        screen->clear();
        shown.draw(camera, Map_Grid::shown, {});
        screen->present();
    }
}

// The same with what a fill of all would place laid over it.
void map_frame_with_preview(benchmark::State& state) {
    const Tileset tileset = tiles_of(24);
    Edited_Map map(many_coloured_map());
    Map_View shown(map, tileset);
    Map_Camera camera({view.width, view.height}, tileset.tile_size());
    camera.centre(largest);
    camera.zoom(static_cast<int>(state.range(0)) - static_cast<int>(real_size_scale), {view.width / 2, 100});
    const Map_Stamp stamp{{2, 1}, {{Map_Cell(map.ids().id_of(0))}, {Map_Cell(map.ids().id_of(1))}}};
    Map_Overlay overlay{{}, Map_Pattern(stamp, Stamp_Use::at_random, {0, 0}, 1)};
    for (int y = 0; y < largest.height; ++y) {
        overlay.runs.push_back({{0, y}, largest.width});
    }
    for (auto _ : state) {
        camera.move({7, 5});
        screen->clear();
        shown.draw(camera, Map_Grid::shown, overlay);
        screen->present();
    }
}

void map_fill(benchmark::State& state) {
    Edited_Map map{Tile_Map(largest)};
    const Map_Stamp stamp{{2, 1}, {{Map_Cell(map.ids().id_of(0))}, {Map_Cell(map.ids().id_of(1))}}};
    for (auto _ : state) {
        map.begin();
        place_region(map, Map_Pattern(stamp, Stamp_Use::at_random, {0, 0}, 1), {500, 500});
        map.commit();
        state.PauseTiming();
        map.take_back();
        state.ResumeTiming();
    }
}

void map_open(benchmark::State& state) {
    const std::vector<std::uint8_t> bytes = encode_map(many_coloured_map(), {});
    for (auto _ : state) {
        const Edited_Map map(decode_map(bytes)->map);
        benchmark::DoNotOptimize(map.map().cells().data());
    }
}

BENCHMARK(map_frame)->ArgsProduct({{6, 24, 64}, {0, 2, 3, 4, 10}})->Unit(benchmark::kMillisecond);
BENCHMARK(map_frame_with_preview)->Arg(0)->Arg(2)->Arg(3)->Unit(benchmark::kMillisecond);
BENCHMARK(map_fill)->Unit(benchmark::kMillisecond);
BENCHMARK(map_open)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quadrelle::bench
