#include "screen/events.h"

#include <SDL3/SDL.h>

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

bool key_was_released = false;
bool button_was_released = false;

void note(const SDL_Event& event) {
    key_was_released = key_was_released || event.type == SDL_EVENT_KEY_UP;
    button_was_released = button_was_released || event.type == SDL_EVENT_MOUSE_BUTTON_UP;
}

} // namespace

bool take_key_release() {
    return std::exchange(key_was_released, false);
}

bool take_button_release() {
    return std::exchange(button_was_released, false);
}

void set_wait_watcher(Wait_Watcher new_watcher) {
    watcher() = std::move(new_watcher);
}

SDL_Event wait_event(std::string_view loop) {
    tell_watcher(loop);
    SDL_Event event{};
    while (!SDL_WaitEvent(&event)) {
        SDL_Delay(idle_milliseconds);
    }
    note(event);
    return event;
}

namespace {

SDL_Event wait_event_ticking(const Modal_Loop& loop) {
    SDL_Event event{};
    tell_watcher(loop.name);
    while (!SDL_WaitEventTimeout(&event, loop.tick.milliseconds)) {
        if (loop.tick.work()) {
            loop.draw();
        }
        tell_watcher(loop.name);
    }
    note(event);
    return event;
}

} // namespace

void run_modal(const Modal_Loop& loop) {
    Loop_Step step = Loop_Step::go_on;
    while (step == Loop_Step::go_on) {
        loop.draw();
        step = loop.handle(loop.tick.work ? wait_event_ticking(loop) : wait_event(loop.name));
    }
}

Idle_Outcome idle(std::string_view loop) {
    tell_watcher(loop);
    Idle_Outcome outcome = Idle_Outcome::nothing_happened;
    SDL_Event event{};
    while (SDL_PollEvent(&event)) {
        note(event);
        outcome = Idle_Outcome::events_taken;
    }
    SDL_Delay(idle_milliseconds);
    return outcome;
}

void discard_events() {
    SDL_PumpEvents();
    key_was_released = key_was_released || SDL_HasEvent(SDL_EVENT_KEY_UP);
    button_was_released = button_was_released || SDL_HasEvent(SDL_EVENT_MOUSE_BUTTON_UP);
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
}

bool is_shift_held() {
    return (SDL_GetModState() & SDL_KMOD_SHIFT) != 0;
}

Pointer_State pointer_of(const SDL_MouseButtonEvent& event) {
    return {event.x, event.y, mouse_button(event.button)};
}

Pointer_State pointer_of(const SDL_MouseMotionEvent& event) {
    return {event.x, event.y, Mouse_Button::none};
}

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

Key_Chord key_chord_of(const SDL_KeyboardEvent& event) {
    const Held_Modifiers held{(event.mod & SDL_KMOD_SHIFT) != 0, (event.mod & SDL_KMOD_CTRL) != 0,
                              (event.mod & SDL_KMOD_ALT) != 0};
    return make_key_chord(event.key, held);
}

} // namespace quadrelle
