#include "screen/events.h"

#include "base/end_signals.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <deque>
#include <string>
#include <utility>

namespace quadrelle {

namespace {

// Long enough to keep the processor free, short enough that nobody notices.
constexpr Uint32 idle_milliseconds = 10;

Wait_Watcher& watcher() {
    static Wait_Watcher the_watcher;
    return the_watcher;
}

void tell_watcher(std::string_view loop) {
    if (watcher()) {
        watcher()(loop);
    }
}

Held_Modifiers held_in(SDL_Keymod state) {
    return {(state & SDL_KMOD_SHIFT) != 0, (state & SDL_KMOD_CTRL) != 0, (state & SDL_KMOD_ALT) != 0};
}

// What the events have left behind that were taken so far.
struct Taken {
    bool is_control_pressed = false;
    bool button_was_released = false;
    bool pointer_was_lost = false;
    Held_Modifiers held;     // at the last key
    std::string key_went_to; // the loop that took the last press of a key
    bool is_ending = false;  // a signal asked the program to end, and the main loop does not know yet
};

Taken& taken() {
    static Taken what_was_taken;
    return what_was_taken;
}

std::deque<std::string>& dropped_files() {
    static std::deque<std::string> the_files;
    return the_files;
}

// Not on the window.
constexpr Point nowhere{-1, -1};
Followed_Pointer pointer{nowhere, std::nullopt};

void note_release() {
    taken().button_was_released = true;
    pointer.pressed_at.reset();
}

void note_press(const SDL_MouseButtonEvent& event) {
    const Pointer_State press{event.x, event.y, mouse_button(event.button)};
    pointer.position = press.point();
    if (press.button != Mouse_Button::none) {
        pointer.pressed_at = press.point();
    }
}

void note_drop(const SDL_DropEvent& event) {
    if (event.data != nullptr) {
        dropped_files().emplace_back(event.data);
    }
}

void note_key(const SDL_KeyboardEvent& event) {
    taken().held = held_in(event.mod);
    const Modifier modifier = make_key_chord(event.key, taken().held).modifier;
    taken().is_control_pressed =
        event.type == SDL_EVENT_KEY_DOWN && (modifier == Modifier::control || taken().is_control_pressed);
}

void note(const SDL_Event& event) {
    switch (event.type) {
    case SDL_EVENT_KEY_DOWN:
    case SDL_EVENT_KEY_UP: note_key(event.key); break;
    case SDL_EVENT_MOUSE_BUTTON_UP: note_release(); break;
    case SDL_EVENT_MOUSE_BUTTON_DOWN: note_press(event.button); break;
    case SDL_EVENT_MOUSE_MOTION:
        pointer.position = Pointer_State{event.motion.x, event.motion.y, Mouse_Button::none}.point();
        break;
    case SDL_EVENT_WINDOW_MOUSE_LEAVE: pointer.position = nowhere; break;
    case SDL_EVENT_DROP_FILE: note_drop(event.drop); break;
    default: break;
    }
}

// That of a signal ends the program, or asks whether it may, and not only what is in view. The loop that
// waits next gets it.
void pass_on(const SDL_Event& quit, std::string_view loop) {
    const bool is_asked_to_end = take_end_signal();
    taken().is_ending = loop != main_loop && (taken().is_ending || is_asked_to_end);
    if (taken().is_ending) {
        SDL_Event next = quit;
        SDL_PushEvent(&next);
    }
}

// A key that is held goes on only where it went down.
Input_Event answered_in(std::string_view loop, const SDL_Event& event) {
    note(event);
    if (event.type == SDL_EVENT_QUIT) {
        pass_on(event, loop);
    }
    if (event.type == SDL_EVENT_KEY_DOWN && !event.key.repeat) {
        taken().key_went_to = loop;
    }
    const bool goes_on_elsewhere =
        event.type == SDL_EVENT_KEY_DOWN && event.key.repeat && taken().key_went_to != loop;
    return goes_on_elsewhere ? Input_Event{} : input_event_of(event);
}

} // namespace

bool is_control_pressed() {
    return taken().is_control_pressed;
}

void forget_control() {
    taken().is_control_pressed = false;
}

bool take_button_release() {
    return std::exchange(taken().button_was_released, false);
}

bool take_pointer_loss() {
    return std::exchange(taken().pointer_was_lost, false);
}

const Followed_Pointer& followed_pointer() {
    return pointer;
}

// A place that nothing is at: until the release, nothing answers.
void forget_press() {
    if (pointer.pressed_at) {
        pointer.pressed_at = nowhere;
    }
}

void forget_pointer() {
    pointer = {nowhere, std::nullopt};
}

std::optional<std::string> take_dropped_file() {
    if (dropped_files().empty()) {
        return std::nullopt;
    }
    std::string file = std::move(dropped_files().front());
    dropped_files().pop_front();
    return file;
}

void set_wait_watcher(Wait_Watcher new_watcher) {
    watcher() = std::move(new_watcher);
}

Input_Event wait_event(std::string_view loop) {
    tell_watcher(loop);
    SDL_Event event{};
    while (!SDL_WaitEvent(&event)) {
        SDL_Delay(idle_milliseconds);
    }
    return answered_in(loop, event);
}

namespace {

Input_Event wait_event_ticking(const Modal_Loop& loop) {
    SDL_Event event{};
    tell_watcher(loop.name);
    while (!SDL_WaitEventTimeout(&event, loop.tick.milliseconds)) {
        const Tick_Outcome outcome = loop.tick.work();
        if (outcome == Tick_Outcome::rest) {
            return wait_event(loop.name);
        }
        if (outcome == Tick_Outcome::draw) {
            loop.draw();
        }
        tell_watcher(loop.name);
    }
    return answered_in(loop.name, event);
}

} // namespace

namespace {

bool does_motion_wait() {
    SDL_Event next{};
    return SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_EVENT_FIRST, SDL_EVENT_LAST) > 0 &&
           next.type == SDL_EVENT_MOUSE_MOTION;
}

} // namespace

void draw_next_frame(const std::function<void()>& draw) {
    constexpr Uint64 longest_pause = SDL_MS_TO_NS(8);
    static Uint64 last_frame = 0;
    if (!does_motion_wait() || SDL_GetTicksNS() - last_frame >= longest_pause) {
        draw();
        last_frame = SDL_GetTicksNS();
    }
}

void run_modal(const Modal_Loop& loop) {
    Loop_Step step = Loop_Step::go_on;
    loop.draw();
    while (step == Loop_Step::go_on) {
        step = loop.handle(loop.tick.work ? wait_event_ticking(loop) : wait_event(loop.name));
        if (step == Loop_Step::go_on) {
            draw_next_frame(loop.draw);
        }
    }
}

bool ends_hold(const Input_Event& event) {
    const bool is_release =
        event.kind == Input_Kind::button_release && event.pointer.button != Mouse_Button::none;
    return is_release || event.kind == Input_Kind::quit;
}

void follow_pointer(std::string_view loop, const std::function<void()>& draw,
                    const std::function<void(const Input_Event& motion)>& follow) {
    run_modal({loop, draw, [&follow](const Input_Event& event) {
                   if (event.kind == Input_Kind::pointer_motion) {
                       follow(event);
                   }
                   return ends_hold(event) ? Loop_Step::end : Loop_Step::go_on;
               }});
}

namespace {

Idle_Outcome outcome_of(const SDL_Event& event) {
    if (event.type == SDL_EVENT_QUIT) {
        return Idle_Outcome::quit_wanted;
    }
    const bool is_escape = event.type == SDL_EVENT_KEY_DOWN && event.key.key == SDLK_ESCAPE;
    return is_escape ? Idle_Outcome::escape_pressed : Idle_Outcome::events_taken;
}

} // namespace

void keep_quit() {
    SDL_Event quit{};
    quit.type = SDL_EVENT_QUIT;
    SDL_PushEvent(&quit);
}

Idle_Outcome idle(std::string_view loop) {
    tell_watcher(loop);
    Idle_Outcome outcome = Idle_Outcome::nothing_happened;
    SDL_Event event{};
    while (SDL_PollEvent(&event)) {
        note(event);
        outcome = std::max(outcome, outcome_of(event));
    }
    taken().pointer_was_lost = true;
    SDL_Delay(idle_milliseconds);
    return outcome;
}

void discard_events() {
    SDL_PumpEvents();
    taken().is_control_pressed = taken().is_control_pressed && !SDL_HasEvent(SDL_EVENT_KEY_UP);
    if (SDL_HasEvent(SDL_EVENT_MOUSE_BUTTON_UP)) {
        note_release();
    }
    SDL_Event event{};
    while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_EVENT_DROP_FILE, SDL_EVENT_DROP_FILE) > 0) {
        note(event);
    }
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_QUIT - 1);
    SDL_FlushEvents(SDL_EVENT_QUIT + 1, SDL_EVENT_LAST);
}

// The system's answer is ahead of the keys that still wait.
Held_Modifiers held_modifiers() {
    const bool keys_wait = SDL_HasEvents(SDL_EVENT_KEY_DOWN, SDL_EVENT_KEY_UP);
    return keys_wait ? taken().held : held_in(SDL_GetModState());
}

bool is_shift_held() {
    return held_modifiers().shift;
}

namespace {

static_assert(key::none == SDLK_UNKNOWN && key::backspace == SDLK_BACKSPACE && key::tab == SDLK_TAB);
static_assert(key::enter == SDLK_RETURN && key::escape == SDLK_ESCAPE && key::space == SDLK_SPACE);
static_assert(key::delete_key == SDLK_DELETE && key::f1 == SDLK_F1);
static_assert(key::home == SDLK_HOME && key::end == SDLK_END);
static_assert(key::page_up == SDLK_PAGEUP && key::page_down == SDLK_PAGEDOWN);
static_assert(key::right == SDLK_RIGHT && key::left == SDLK_LEFT);
static_assert(key::down == SDLK_DOWN && key::up == SDLK_UP);
static_assert(key::keypad_multiply == SDLK_KP_MULTIPLY && key::keypad_enter == SDLK_KP_ENTER);
static_assert(key::keypad_minus == SDLK_KP_MINUS && key::keypad_plus == SDLK_KP_PLUS);
static_assert(key::keypad_1 == SDLK_KP_1 && key::keypad_0 == SDLK_KP_0);
static_assert(key::left_control == SDLK_LCTRL && key::right_control == SDLK_RCTRL);
static_assert(key::left_shift == SDLK_LSHIFT && key::right_shift == SDLK_RSHIFT);
static_assert(key::left_alt == SDLK_LALT && key::right_alt == SDLK_RALT);

// None for keys that make no character, such as Delete.
Keycode made_by(const SDL_KeyboardEvent& event, SDL_Keymod levels) {
    const Keycode made = SDL_GetKeyFromScancode(event.scancode, levels, false);
    const bool is_character = made > key::space && made != key::delete_key &&
                              (made & (SDLK_SCANCODE_MASK | SDLK_EXTENDED_MASK)) == 0;
    return is_character ? made : key::none;
}

// Some systems report AltGr as the left Ctrl and the right Alt.
bool may_be_alt_gr(SDL_Keymod held) {
    constexpr SDL_Keymod left_ctrl_and_right_alt = SDL_KMOD_LCTRL | SDL_KMOD_RALT;
    return (held & SDL_KMOD_MODE) != 0 || (held & (SDL_KMOD_CTRL | SDL_KMOD_ALT)) == left_ctrl_and_right_alt;
}

// None where AltGr is not held, or makes no difference.
Keycode made_with_alt_gr(const SDL_KeyboardEvent& event) {
    const auto shift = static_cast<SDL_Keymod>(event.mod & SDL_KMOD_SHIFT);
    const Keycode made = made_by(event, static_cast<SDL_Keymod>(shift | SDL_KMOD_MODE));
    return may_be_alt_gr(event.mod) && made != made_by(event, shift) ? made : key::none;
}

Keycode character_of(const SDL_KeyboardEvent& event) {
    const bool is_chord = (event.mod & (SDL_KMOD_CTRL | SDL_KMOD_ALT)) != 0;
    return is_chord ? key::none : made_by(event, static_cast<SDL_Keymod>(event.mod & SDL_KMOD_SHIFT));
}

Input_Event key_press(const SDL_KeyboardEvent& event) {
    Input_Event press{.kind = Input_Kind::key_press};
    const Keycode by_alt_gr = made_with_alt_gr(event);
    press.chord = by_alt_gr != key::none ? Key_Chord{by_alt_gr, Modifier::none}
                                         : make_key_chord(event.key, held_in(event.mod));
    press.character = by_alt_gr != key::none ? by_alt_gr : character_of(event);
    press.is_repeat = event.repeat;
    return press;
}

Input_Event button_event(Input_Kind kind, const SDL_MouseButtonEvent& event) {
    Input_Event input{.kind = kind};
    input.pointer = {event.x, event.y, mouse_button(event.button)};
    input.button_number = event.button;
    input.clicks = event.clicks;
    return input;
}

Input_Event motion(const SDL_MouseMotionEvent& event) {
    Input_Event input{.kind = Input_Kind::pointer_motion};
    input.pointer = {event.x, event.y, Mouse_Button::none};
    input.moved = {event.xrel, event.yrel};
    return input;
}

Input_Event wheel(const SDL_MouseWheelEvent& event) {
    Input_Event input{.kind = Input_Kind::wheel};
    input.moved = {event.x, event.y};
    input.pointer = {event.mouse_x, event.mouse_y, Mouse_Button::none};
    return input;
}

Input_Event typed_text(const SDL_TextInputEvent& event) {
    Input_Event input{.kind = Input_Kind::typed_text};
    input.text = event.text;
    return input;
}

} // namespace

Input_Event input_event_of(const SDL_Event& event) {
    switch (event.type) {
    case SDL_EVENT_KEY_DOWN: return key_press(event.key);
    case SDL_EVENT_KEY_UP: return {.kind = Input_Kind::key_release};
    case SDL_EVENT_TEXT_INPUT: return typed_text(event.text);
    case SDL_EVENT_MOUSE_MOTION: return motion(event.motion);
    case SDL_EVENT_WINDOW_MOUSE_LEAVE: return {.kind = Input_Kind::pointer_left};
    case SDL_EVENT_MOUSE_BUTTON_DOWN: return button_event(Input_Kind::button_press, event.button);
    case SDL_EVENT_MOUSE_BUTTON_UP: return button_event(Input_Kind::button_release, event.button);
    case SDL_EVENT_MOUSE_WHEEL: return wheel(event.wheel);
    case SDL_EVENT_QUIT: return {.kind = Input_Kind::quit};
    default: return {};
    }
}

} // namespace quadrelle
