// How long the editor takes: a frame, a motion of a stroke, a press, the start; and the memory it holds then.
// Run it from the root folder, on the X server that the figures are for.

#include "app/application.h"
#include "app/editor.h"
#include "app/events.h"
#include "app/files.h"
#include "tileset/tileset_file.h"

#include <benchmark/benchmark.h>

#include <SDL3/SDL.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

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
    [[nodiscard]] int motions_timed() const { return step_ - 1; }
    [[nodiscard]] double press_seconds() const { return press_seconds_; }
    [[nodiscard]] double motion_seconds() const { return motion_seconds_; }

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
        (step_ == 0 ? press_seconds_ : motion_seconds_) += seconds_since(started_);
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
    double motion_seconds_ = 0;
};

void stroke_motion(benchmark::State& state) {
    set_up({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
    constexpr int motions = 200;
    for (auto _ : state) {
        Timed_Stroke stroke(motions);
        stroke.run();
        if (stroke.motions_timed() < 1) {
            state.SkipWithError("The stroke had no motion.");
            break;
        }
        state.SetIterationTime(stroke.motion_seconds() / stroke.motions_timed());
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

// The command with the frame that shows the other tile, back at the first one where the set ends.
void next_tile(benchmark::State& state) {
    const int edge = static_cast<int>(state.range(0));
    editor->documents().new_document({edge, edge});
    Tileset& tileset = editor->documents().current().tileset();
    fill(tileset);
    for (auto _ : state) {
        if (tileset.is_last()) {
            tileset.select(0);
        }
        editor->execute(Command::next_tile);
        editor->redraw(Present::yes);
    }
}

BENCHMARK(frame)->Args({24, 21})->Args({64, 8})->Args({255, 3})->Unit(benchmark::kMicrosecond);
BENCHMARK(stroke_motion)->Args({24, 21})->Args({64, 8})->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(stroke_press)->Args({24, 21})->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(save_set)->Arg(24)->Arg(64)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(load_set)->Arg(24)->Arg(64)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(next_tile)->Arg(24)->Arg(64)->Unit(benchmark::kMicrosecond);
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
