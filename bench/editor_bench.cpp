// How long the editor takes: a frame, a motion of a stroke, a press, a fill, an undo step, the next tile, the
// start; and the memory it holds then.
// Run it from the root folder, on the X server that the figures are for.

#include "app/editor.h"
#include "app/start_up.h"
#include "base/platform_files.h"
#include "screen/events.h"
#include "tileset/tileset_file.h"
#include "tools/flood_fill.h"

#include <benchmark/benchmark.h>

#include <SDL3/SDL.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace quadrelle {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view probe_argument = "--start-up-probe";

double seconds_since(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

struct Canvas_Case {
    int tile_edge;
    int pixel_size;
};

void set_up(Canvas_Case canvas) {
    editor->documents().new_document({canvas.tile_edge, canvas.tile_edge});
    Tile& tile = *editor->canvas().tile();
    for (int i = 0; i < tile.pixel_count(); ++i) {
        tile.set_pixel_at(i, {i * 7 % 256, i * 31 % 256, i * 3 % 256, i % 5 == 0 ? 128 : 255});
    }
    editor->canvas().set_pixel_size(canvas.pixel_size);
    editor->canvas().centre();
}

void frame(benchmark::State& state) {
    set_up({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
    for (auto _ : state) {
        editor->redraw(Present::yes);
    }
}

void push(const SDL_Event& event) {
    SDL_Event copy = event;
    SDL_PushEvent(&copy);
}

SDL_Event button_event(SDL_EventType type, float x, float y) {
    SDL_Event event{};
    event.type = type;
    event.button.button = SDL_BUTTON_LEFT;
    event.button.x = x;
    event.button.y = y;
    return event;
}

SDL_Event motion_event(int step) {
    SDL_Event event{};
    event.type = SDL_EVENT_MOUSE_MOTION;
    event.motion.x = 300.0F + static_cast<float>(step * 37 % 400);
    event.motion.y = 100.0F + static_cast<float>(step * 23 % 400);
    return event;
}

// Runs the editor's own loop over one stroke. The time of a motion is that from its event to the next wait,
// by which its frame is presented; that of the press likewise.
class Timed_Stroke {
public:
    explicit Timed_Stroke(int motions) : motions_(motions) {}

    void run() {
        set_wait_watcher([this](std::string_view loop) { feed(loop); });
        SDL_PumpEvents();
        SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
        push(button_event(SDL_EVENT_MOUSE_BUTTON_DOWN, 400, 300));
        editor->handle_one_event();
        set_wait_watcher({});
    }

    [[nodiscard]] bool was_pressed() const { return step_ > 0; }
    [[nodiscard]] bool has_moved() const { return !motion_seconds_.empty(); }
    [[nodiscard]] double press_seconds() const { return press_seconds_; }
    [[nodiscard]] double median_motion_seconds() {
        const auto middle = motion_seconds_.begin() + static_cast<std::ptrdiff_t>(motion_seconds_.size() / 2);
        std::ranges::nth_element(motion_seconds_, middle);
        return *middle;
    }

private:
    void feed(std::string_view loop) {
        if (loop == "main") {
            started_ = Clock::now();
            return;
        }
        // Another event, of the window system, may have been answered instead.
        if (SDL_HasEvents(SDL_EVENT_MOUSE_MOTION, SDL_EVENT_MOUSE_BUTTON_UP)) {
            return;
        }
        if (step_ == 0) {
            press_seconds_ = seconds_since(started_);
        } else {
            motion_seconds_.push_back(seconds_since(started_));
        }
        if (step_ < motions_) {
            push(motion_event(step_));
        } else {
            push(button_event(SDL_EVENT_MOUSE_BUTTON_UP, 400, 300));
        }
        ++step_;
        started_ = Clock::now();
    }

    int motions_;
    int step_ = 0;
    Clock::time_point started_;
    double press_seconds_ = 0;
    std::vector<double> motion_seconds_;
};

void stroke_motion(benchmark::State& state) {
    set_up({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
    constexpr int motions = 200;
    for (auto _ : state) {
        Timed_Stroke stroke(motions);
        stroke.run();
        if (!stroke.has_moved()) {
            state.SkipWithError("The stroke had no motion.");
            break;
        }
        state.SetIterationTime(stroke.median_motion_seconds());
    }
}

void stroke_press(benchmark::State& state) {
    set_up({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
    for (auto _ : state) {
        Timed_Stroke stroke(0);
        stroke.run();
        if (!stroke.was_pressed()) {
            state.SkipWithError("The press did not arrive.");
            break;
        }
        state.SetIterationTime(stroke.press_seconds());
    }
}

// From one tile of a large set to the next, the window drawn again with the whole strip in it.
void next_tile(benchmark::State& state) {
    set_up({static_cast<int>(state.range(0)), 8});
    Tileset& tileset = editor->documents().current().tileset();
    const Tile first(*tileset.current_tile());
    while (tileset.insert_copy_after(first)) {}
    tileset.select(0);
    for (auto _ : state) {
        if (tileset.is_last()) {
            state.PauseTiming();
            tileset.select(0);
            editor->execute(Command::change_tile);
            editor->redraw(Present::yes);
            state.ResumeTiming();
        }
        editor->execute(Command::next_tile);
        editor->redraw(Present::yes);
    }
}

constexpr Color floor_color(0, 0, 0);
constexpr Color wall_color(90, 90, 90);

int fill_and_show(Tile& tile, Color color) {
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
        if (fill_and_show(tile, is_filled ? Color(200, 30, 40) : floor_color) != area) {
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

// With the texture of the picture in the History pane, and what goes for the oldest step that falls off.
void undo_step(benchmark::State& state) {
    const int edge = static_cast<int>(state.range(0));
    set_up({edge, 8});
    const Undo_History& history = editor->documents().current().history();
    const auto record_and_show = [&history] {
        editor->execute(Command::change_tile);
        history.entries().back().snapshot->tile.draw({0, 0, 24, 24});
    };
    for (int i = 0; i < Undo_History::default_capacity; ++i) {
        record_and_show();
    }
    for (auto _ : state) {
        record_and_show();
    }
}

long resident_kibibytes() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "VmRSS:") {
            long size = 0;
            status >> size;
            return size;
        }
    }
    return 0;
}

// The whole program up to its first frame on the screen; prints the memory it holds then.
int probe_start_up() {
    start_application();
    editor->show_first_frame();
    std::printf("%ld\n", resident_kibibytes());
    std::fflush(stdout);
    std::_Exit(0);
}

void start_up(benchmark::State& state) {
    const std::string command = "/proc/" + std::to_string(getpid()) + "/exe " + std::string(probe_argument);
    double kibibytes = 0;
    for (auto _ : state) {
        std::array<char, 64> line{};
        FILE* probe = popen(command.c_str(), "r");
        if (probe == nullptr || std::fgets(line.data(), line.size(), probe) == nullptr) {
            state.SkipWithError("The probe did not start.");
        }
        pclose(probe);
        kibibytes = std::strtod(line.data(), nullptr);
    }
    state.counters["resident_MiB"] = kibibytes / 1024;
}

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

std::string scratch_file() {
    return (std::filesystem::temp_directory_path() / ("quadrelle-bench-" + std::to_string(getpid()) + ".qdl"))
        .string();
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
    const std::string path = scratch_file();
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
    const std::string path = scratch_file();
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

BENCHMARK(frame)->Args({24, 21})->Args({64, 8})->Args({255, 3})->Unit(benchmark::kMicrosecond);
// The time of a stroke is that of one motion, so few of them make up no time.
BENCHMARK(stroke_motion)
    ->Args({24, 21})
    ->Args({64, 8})
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(stroke_press)->Args({24, 21})->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(next_tile)->Arg(24)->Arg(64)->Unit(benchmark::kMicrosecond);
BENCHMARK(fill_plain)->Arg(255)->Unit(benchmark::kMicrosecond);
BENCHMARK(fill_serpentine)->Arg(flood_wave_limit - 1)->Unit(benchmark::kMicrosecond);
BENCHMARK(undo_step)->Arg(64)->Unit(benchmark::kMicrosecond);
BENCHMARK(save_set)->Arg(24)->Arg(64)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(load_set)->Arg(24)->Arg(64)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(start_up)->UseRealTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quadrelle

int main(int argument_count, char** arguments) {
    if (argument_count > 1 && arguments[1] == quadrelle::probe_argument) {
        return quadrelle::probe_start_up();
    }
    benchmark::Initialize(&argument_count, arguments);
    quadrelle::start_application();
    quadrelle::editor->show_first_frame();
    benchmark::RunSpecifiedBenchmarks();
    quadrelle::shut_down_application();
    return 0;
}
