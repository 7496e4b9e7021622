#include "tests/support/scripted_events.h"

#include "screen/events.h"

#include <SDL3/SDL.h>

#include <stdexcept>
#include <utility>

namespace quadrelle::testing {

namespace {

int number_of(Mouse_Button button) {
    return button == Mouse_Button::left    ? SDL_BUTTON_LEFT
           : button == Mouse_Button::right ? SDL_BUTTON_RIGHT
                                           : SDL_BUTTON_MIDDLE;
}

SDL_Keymod held_keys(Modifier modifier) {
    return modifier == Modifier::shift     ? SDL_KMOD_LSHIFT
           : modifier == Modifier::control ? SDL_KMOD_LCTRL
           : modifier == Modifier::alt     ? SDL_KMOD_LALT
                                           : SDL_KMOD_NONE;
}

SDL_Event event_of(Uint32 type) {
    SDL_Event event{};
    event.type = type;
    return event;
}

SDL_Event key_event(Uint32 type, Keycode code, Modifier modifier) {
    SDL_Event event = event_of(type);
    event.key.key = code;
    event.key.mod = held_keys(modifier);
    event.key.down = type == SDL_EVENT_KEY_DOWN;
    return event;
}

SDL_Event button_event(Uint32 type, Point position, int number) {
    SDL_Event event = event_of(type);
    event.button.button = static_cast<Uint8>(number);
    event.button.down = type == SDL_EVENT_MOUSE_BUTTON_DOWN;
    event.button.clicks = 1;
    event.button.x = static_cast<float>(position.x);
    event.button.y = static_cast<float>(position.y);
    return event;
}

// The marks that the library itself puts into its queue do not count.
bool has_events() {
    return SDL_HasEvents(SDL_EVENT_FIRST, SDL_EVENT_POLL_SENTINEL - 1) ||
           SDL_HasEvents(SDL_EVENT_USER, SDL_EVENT_LAST);
}

SDL_Event motion_event(Point from, Point to) {
    SDL_Event event = event_of(SDL_EVENT_MOUSE_MOTION);
    event.motion.x = static_cast<float>(to.x);
    event.motion.y = static_cast<float>(to.y);
    event.motion.xrel = static_cast<float>(to.x - from.x);
    event.motion.yrel = static_cast<float>(to.y - from.y);
    return event;
}

} // namespace

Script::Script() {
    SDL_PumpEvents();
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
    forget_control();
    set_wait_watcher([this](std::string_view loop) { feed(loop); });
}

Script::~Script() {
    set_wait_watcher({});
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
}

Script& Script::key(Keycode pressed, Modifier modifier) {
    return add_event(key_event(SDL_EVENT_KEY_DOWN, pressed, modifier));
}

Script& Script::repeated_key(Keycode held) {
    SDL_Event event = key_event(SDL_EVENT_KEY_DOWN, held, Modifier::none);
    event.key.repeat = true;
    return add_event(event);
}

Script& Script::text(std::string_view typed) {
    texts_.emplace_back(typed);
    SDL_Event event = event_of(SDL_EVENT_TEXT_INPUT);
    event.text.text = texts_.back().c_str();
    return add_event(event);
}

Script& Script::key_up(Keycode released, Modifier modifier) {
    return add_event(key_event(SDL_EVENT_KEY_UP, released, modifier));
}

Script& Script::type(std::string_view characters) {
    for (const char character : characters) {
        const auto code = static_cast<Keycode>(static_cast<unsigned char>(character));
        key(code).key_up(code);
    }
    return *this;
}

Script& Script::press(Point position, Mouse_Button button) {
    return press_number(position, number_of(button));
}

Script& Script::press_number(Point position, int button_number) {
    pointer_ = position;
    return add_event(button_event(SDL_EVENT_MOUSE_BUTTON_DOWN, position, button_number));
}

Script& Script::release(Point position, Mouse_Button button) {
    return add_event(button_event(SDL_EVENT_MOUSE_BUTTON_UP, position, number_of(button)));
}

Script& Script::motion(Point position) {
    const SDL_Event event = motion_event(std::exchange(pointer_, position), position);
    return add_event(event);
}

Script& Script::at_once(std::size_t count) {
    const auto first = steps_.end() - static_cast<std::ptrdiff_t>(count);
    const std::vector<Entry> together(first, steps_.end());
    steps_.erase(first, steps_.end());
    steps_.push_back({true, [together](std::string_view loop) {
                          for (const Entry& entry : together) {
                              entry.run(loop);
                          }
                      }});
    return *this;
}

Script& Script::click(Point position, Mouse_Button button) {
    return press(position, button).release(position, button);
}

Script& Script::second_press(Point position, std::uint8_t clicks) {
    SDL_Event event = button_event(SDL_EVENT_MOUSE_BUTTON_DOWN, position, SDL_BUTTON_LEFT);
    event.button.clicks = clicks;
    return add_event(event);
}

Script& Script::drag(const std::vector<Point>& points, Mouse_Button button) {
    press(points.front(), button);
    for (std::size_t i = 1; i < points.size(); ++i) {
        motion(points[i]);
    }
    return release(points.back(), button);
}

Script& Script::wheel(float amount, Point at) {
    SDL_Event event = event_of(SDL_EVENT_MOUSE_WHEEL);
    event.wheel.y = amount;
    event.wheel.mouse_x = static_cast<float>(at.x);
    event.wheel.mouse_y = static_cast<float>(at.y);
    return add_event(event);
}

Script& Script::pointer_leaves() {
    return add_event(event_of(SDL_EVENT_WINDOW_MOUSE_LEAVE));
}

Script& Script::drop_file(std::string_view path) {
    texts_.emplace_back(path);
    SDL_Event event = event_of(SDL_EVENT_DROP_FILE);
    event.drop.data = texts_.back().c_str();
    return add_event(event);
}

Script& Script::quit() {
    return add_event(event_of(SDL_EVENT_QUIT));
}

Script& Script::pause(int milliseconds) {
    steps_.push_back(
        {true, [milliseconds](std::string_view) { SDL_Delay(static_cast<Uint32>(milliseconds)); }});
    return *this;
}

Script& Script::check(std::function<void()> function) {
    return check_loop([run = std::move(function)](std::string_view) { run(); });
}

Script& Script::check_loop(std::function<void(std::string_view)> function) {
    steps_.push_back({false, std::move(function)});
    return *this;
}

void Script::set_afterwards(std::function<void(std::string_view)> function) {
    afterwards_ = std::move(function);
}

Script& Script::add_event(const SDL_Event& event) {
    steps_.push_back({true, [event](std::string_view) {
                          SDL_Event copy = event;
                          SDL_PushEvent(&copy);
                      }});
    return *this;
}

void Script::feed(std::string_view loop) {
    SDL_PumpEvents();
    if (has_events()) {
        return;
    }
    if (is_played() && afterwards_) {
        afterwards_(loop);
    }
    while (next_ < steps_.size()) {
        // A copy: a check may add steps.
        const Entry step = steps_[next_++];
        step.run(loop);
        if (step.is_event) {
            return;
        }
    }
    throw std::runtime_error("the script is played, but a loop still waits: " + std::string(loop));
}

} // namespace quadrelle::testing
