#pragma once

// Plays a user: a list of events and checks that the program's own loops are fed with.

#include "base/geometry.h"
#include "base/input.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

union SDL_Event;

namespace quadrelle::testing {

// While it lives, each loop that waits takes the next event from here, and the checks before it are run. A
// loop that goes on waiting when all is played throws, with its name in the message. Steps may still be added
// by a check.
class Script {
public:
    Script();
    ~Script();
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    Script& key(Keycode pressed, Modifier modifier = Modifier::none);
    // What a key that is held down adds.
    Script& repeated_key(Keycode held);
    Script& key_up(Keycode released, Modifier modifier = Modifier::none);
    // What the keyboard layout makes of keys.
    Script& text(std::string_view typed);
    // Every character a key that is pressed and released.
    Script& type(std::string_view characters);
    Script& press(Point position, Mouse_Button button = Mouse_Button::left);
    Script& press_number(Point position, int button_number);
    Script& release(Point position, Mouse_Button button = Mouse_Button::left);
    Script& motion(Point position);
    // The last ones of the events wait together when the loop asks for the next one.
    Script& at_once(std::size_t count);
    // Press and release.
    Script& click(Point position, Mouse_Button button = Mouse_Button::left);
    // The second of two quick clicks, or a later one, without its release.
    Script& second_press(Point position, std::uint8_t clicks = 2);
    // Pressed at the first point, moved to each of the others, and released at the last one.
    Script& drag(const std::vector<Point>& points, Mouse_Button button = Mouse_Button::left);
    Script& wheel(float amount, Point at = {});
    Script& pointer_leaves();
    Script& drop_file(std::string_view path);
    Script& quit();
    // No event for that time, and then a wait that ends without one: only for loops that do something
    // meanwhile.
    Script& pause(int milliseconds);
    // Run when every event before it has been answered and the loop has drawn.
    Script& check(std::function<void()> function);
    // The same with the name of the loop that waits.
    Script& check_loop(std::function<void(std::string_view loop)> function);

    // Called when all is played and a loop waits: it may add steps. None at first.
    void set_afterwards(std::function<void(std::string_view loop)> function);

    [[nodiscard]] bool is_played() const { return next_ == steps_.size(); }

private:
    using Step = std::function<void(std::string_view loop)>;

    void feed(std::string_view loop);
    Script& add_event(const SDL_Event& event);

    struct Entry {
        bool is_event;
        Step run;
    };
    std::vector<Entry> steps_;
    std::deque<std::string> texts_; // the events point to them
    std::size_t next_ = 0;
    Point pointer_;
    Step afterwards_;
};

} // namespace quadrelle::testing
