#pragma once

// The one place where events are taken, and the one loop that every modal view runs.

#include "base/geometry.h"
#include "base/input.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

union SDL_Event;

namespace quadrelle {

// The loop that all others run in. A request to quit ends the other ones only, but one that a signal made
// goes on from each to the next, as far as this one.
constexpr std::string_view main_loop = "main";

// Blocks until one event is there. `loop` names the waiting loop for whoever watches it. What a key that is
// held adds goes to no other loop than the one that took its press: it was meant for what was there then.
[[nodiscard]] Input_Event wait_event(std::string_view loop);

// Draws the frame that follows an event. It is left out while the pointer's next motion waits already, for 8
// ms at most.
void draw_next_frame(const std::function<void()>& draw);

enum class Loop_Step { go_on, end };

// What came of a tick: something is new to draw, or there is nothing more to do until an event comes.
enum class Tick_Outcome { nothing_new, draw, rest };

// What a loop does while no event comes: each time that many milliseconds have gone by. Nothing by default.
struct Loop_Tick {
    int milliseconds = 0;
    std::function<Tick_Outcome()> work;
};

// Draws, waits for one event, answers it, and so on until the answer is `end`. Motions that have come
// meanwhile are all answered, with a frame now and then. The quit event is an event like the others: a modal
// loop consumes it.
struct Modal_Loop {
    std::string_view name;
    std::function<void()> draw;
    std::function<Loop_Step(const Input_Event&)> handle;
    Loop_Tick tick = {};
};
void run_modal(const Modal_Loop& loop);

// Whether the event ends what goes on while a button of the mouse is held.
[[nodiscard]] bool ends_hold(const Input_Event& event);

// Draws, and again after each event, and hands on the pointer's motions, until a button is released or the
// window is to be closed.
void follow_pointer(std::string_view loop, const std::function<void()>& draw,
                    const std::function<void(const Input_Event& motion)>& follow);

// What came of the events: the user may have pressed Escape among others, or asked for the end of the
// program.
enum class Idle_Outcome { nothing_happened, events_taken, escape_pressed, quit_wanted };

// Takes every event that waits and sleeps a moment, for loops whose end comes from outside of the queue.
Idle_Outcome idle(std::string_view loop);
// Has the request to quit come once more, for the loop that goes on.
void keep_quit();

// Whether Ctrl went down, in whichever loop that was, and no key came up since, nor was it forgotten.
[[nodiscard]] bool is_control_pressed();
void forget_control();
// Whether a mouse button was released since the last call, in whichever loop that was.
[[nodiscard]] bool take_button_release();
// Whether the pointer may be anywhere, since a loop was idle after the last call.
[[nodiscard]] bool take_pointer_loss();

// Where the pointer was last, and where a button of the mouse was pressed that is still held, in whichever
// loop that was.
struct Followed_Pointer {
    Point position;
    std::optional<Point> pressed_at;
};
[[nodiscard]] const Followed_Pointer& followed_pointer();
// What comes into view under a held button, or was under one, has not been pressed itself.
void forget_press();
// A new window does not know of any pointer.
void forget_pointer();

// Returns the next of the files that were dropped on the window, in whichever loop that was, in UTF-8.
[[nodiscard]] std::optional<std::string> take_dropped_file();

// Drops every event that waits but the request to quit and the files that were dropped.
void discard_events();

// What was held when the event came that was taken last, whatever events still wait.
[[nodiscard]] Held_Modifiers held_modifiers();
[[nodiscard]] bool is_shift_held();

// Called with the loop's name before each wait; a test feeds its next event from here.
using Wait_Watcher = std::function<void(std::string_view loop)>;
void set_wait_watcher(Wait_Watcher watcher);

// What the event library reports in the program's own terms.
[[nodiscard]] Input_Event input_event_of(const SDL_Event& event);

} // namespace quadrelle
