// How long the window takes: a frame, a motion of a stroke, a press, the next tile, an undo step.

#include "bench_support.h"

#include "app/documents.h"
#include "app/editor.h"
#include "canvas/canvas_view.h"
#include "screen/events.h"
#include "ui/shown_tile.h"

#include <benchmark/benchmark.h>

#include <SDL3/SDL.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace quadrelle::bench {

namespace {

Canvas_Case canvas_of(const benchmark::State& state) {
    return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

// After one pixel of the tile has changed.
void frame(benchmark::State& state) {
    show_tile(canvas_of(state));
    Tile& tile = *editor->canvas().tile();
    int step = 0;
    for (auto _ : state) {
        tile.set_pixel_at(step * 37 % tile.pixel_count(), {step % 256, 0, 0});
        ++step;
        editor->redraw(Present::yes);
    }
}

// After a key that changes the tool: the tool list, its options, the icons and the hint are others.
void tool_change(benchmark::State& state) {
    show_tile({24, 21});
    bool is_pen = false;
    for (auto _ : state) {
        is_pen = !is_pen;
        editor->execute(is_pen ? Command::pen : Command::work_selection);
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
    show_tile(canvas_of(state));
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
    show_tile(canvas_of(state));
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

// Motions that all wait at once, each one drawn, until the window shows the last one.
void stroke_burst(benchmark::State& state) {
    show_tile({64, 8});
    for (auto _ : state) {
        Clock::time_point started;
        bool has_begun = false;
        set_wait_watcher([&](std::string_view loop) {
            if (loop != "stroke" || SDL_HasEvents(SDL_EVENT_MOUSE_MOTION, SDL_EVENT_MOUSE_BUTTON_UP)) {
                return;
            }
            if (std::exchange(has_begun, true)) {
                state.SetIterationTime(seconds_since(started));
                push(button_event(SDL_EVENT_MOUSE_BUTTON_UP, 400, 300));
                return;
            }
            for (int step = 0; step < state.range(0); ++step) {
                push(motion_event(step));
            }
            started = Clock::now();
        });
        push(button_event(SDL_EVENT_MOUSE_BUTTON_DOWN, 400, 300));
        while (!has_begun) {
            editor->handle_one_event();
        }
        set_wait_watcher({});
    }
}

// Of as many tiles as there can be; returns it.
Tileset& show_full_set(int tile_edge) {
    show_tile({tile_edge, 8});
    Tileset& tileset = editor->documents().current().tileset();
    const Tile first(*tileset.current_tile());
    while (tileset.insert_copy_after(first)) {}
    tileset.select(0);
    return tileset;
}

// From one tile to the next, the window drawn again with the whole strip in it.
void next_tile(benchmark::State& state) {
    Tileset& tileset = show_full_set(static_cast<int>(state.range(0)));
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

// A command that changes all pixels of the current tile, with the frame after it.
void change_tile(benchmark::State& state) {
    show_full_set(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        editor->execute(Command::mirror);
        editor->redraw(Present::yes);
    }
}

// One more set beside so many: its tab is shown.
void new_set(benchmark::State& state) {
    Documents documents([] {}, [] {});
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        documents.new_document({24, 24});
    }
    for (auto _ : state) {
        documents.new_document({24, 24});
    }
}

// With the texture of the picture in the History pane, and what goes for the oldest step that falls off.
void undo_step(benchmark::State& state) {
    const int edge = static_cast<int>(state.range(0));
    show_tile({edge, 8});
    const Undo_History& history = editor->documents().current().history();
    Shown_Tile thumbnail;
    const auto record_and_show = [&] {
        editor->execute(Command::change_tile);
        thumbnail.draw(history.entries().back().snapshot->tile, {0, 0, 24, 24});
    };
    for (int i = 0; i < Undo_History::default_capacity; ++i) {
        record_and_show();
    }
    for (auto _ : state) {
        record_and_show();
    }
}

// What it costs until the journal has taken over what `change` has done. Of 200 changes the median; between
// two of them the disk has time.
double median_of_keeping(const std::function<void(int number)>& change) {
    std::vector<double> seconds;
    for (int number = 0; number < 200; ++number) {
        change(number);
        const double start = thread_seconds();
        editor->documents().mark_changed();
        seconds.push_back(thread_seconds() - start);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    std::ranges::sort(seconds);
    return seconds.at(seconds.size() / 2);
}

// A finished stroke, in a set of 256 tiles.
void keep_stroke(benchmark::State& state) {
    const int edge = static_cast<int>(state.range(0));
    editor->documents().new_document({edge, edge});
    Tileset_Document& document = editor->documents().current();
    while (document.tileset().add_tile()) {}
    document.tileset().select(0);
    editor->documents().mark_changed();
    for (auto _ : state) {
        state.SetIterationTime(median_of_keeping([&](int number) {
            document.tileset().current_tile()->set_pixel_at(number, {200, 30, 40});
            document.record(Command::pen, {}, {});
        }));
    }
}

// A gesture on the largest map.
void keep_map_gesture(benchmark::State& state) {
    editor->documents().new_document({8, 8});
    Edited_Map& map = editor->documents().current().set_map(Tile_Map({largest_map_edge, largest_map_edge}));
    editor->documents().mark_changed();
    for (auto _ : state) {
        state.SetIterationTime(median_of_keeping([&](int number) {
            map.begin();
            map.set({number, number}, Map_Cell(0));
            map.commit();
        }));
    }
}

BENCHMARK(frame)->Args({24, 21})->Args({64, 8})->Args({255, 3})->Unit(benchmark::kMicrosecond);
// The time of a stroke is that of one motion, so few of them make up no time.
BENCHMARK(stroke_motion)
    ->Args({24, 21})
    ->Args({64, 8})
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(stroke_burst)->Arg(1000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(tool_change)->Unit(benchmark::kMicrosecond);
BENCHMARK(stroke_press)->Args({24, 21})->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(next_tile)->Arg(24)->Arg(64)->Arg(255)->Unit(benchmark::kMicrosecond);
BENCHMARK(change_tile)->Arg(24)->Arg(64)->Arg(255)->Unit(benchmark::kMicrosecond);
// The names of untitled sets come to an end.
BENCHMARK(new_set)->Arg(256)->Iterations(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(keep_stroke)
    ->Arg(24)
    ->Arg(64)
    ->Arg(255)
    ->UseManualTime()
    ->Iterations(2)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(keep_map_gesture)->UseManualTime()->Iterations(2)->Unit(benchmark::kMicrosecond);
BENCHMARK(undo_step)->Arg(64)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quadrelle::bench
