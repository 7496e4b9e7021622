#include "screen/events.h"

#include <SDL3/SDL.h>

#include <deque>
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

std::deque<std::string>& dropped_files() {
    static std::deque<std::string> the_files;
    return the_files;
}

// Not on the window.
constexpr Point nowhere{-1, -1};
Followed_Pointer pointer{nowhere, std::nullopt};

void note_release() {
    button_was_released = true;
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

void note(const SDL_Event& event) {
    switch (event.type) {
    case SDL_EVENT_KEY_UP: key_was_released = true; break;
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

} // namespace

bool take_key_release() {
    return std::exchange(key_was_released, false);
}

bool take_button_release() {
    return std::exchange(button_was_released, false);
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
    note(event);
    return input_event_of(event);
}

namespace {

Input_Event wait_event_ticking(const Modal_Loop& loop) {
    SDL_Event event{};
    tell_watcher(loop.name);
    while (!SDL_WaitEventTimeout(&event, loop.tick.milliseconds)) {
        if (loop.tick.work()) {
            loop.draw();
        }
        tell_watcher(loop.name);
    }
    note(event);
    return input_event_of(event);
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

namespace {

Held_Modifiers held_in(SDL_Keymod state) {
    return {(state & SDL_KMOD_SHIFT) != 0, (state & SDL_KMOD_CTRL) != 0, (state & SDL_KMOD_ALT) != 0};
}

} // namespace

Held_Modifiers held_modifiers() {
    return held_in(SDL_GetModState());
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

Keycode character_of(const SDL_KeyboardEvent& event) {
    const bool is_chord = (event.mod & (SDL_KMOD_CTRL | SDL_KMOD_ALT)) != 0;
    const auto levels = static_cast<SDL_Keymod>(event.mod & (SDL_KMOD_SHIFT | SDL_KMOD_MODE));
    return is_chord ? key::none : SDL_GetKeyFromScancode(event.scancode, levels, false);
}

Input_Event key_press(const SDL_KeyboardEvent& event) {
    Input_Event press{.kind = Input_Kind::key_press};
    press.chord = make_key_chord(event.key, held_in(event.mod));
    press.character = character_of(event);
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
