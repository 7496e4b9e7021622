#pragma once

// A small box in which the user types a number between two bounds.

#include "base/geometry.h"
#include "base/input.h"
#include "screen/events.h"

#include <optional>
#include <string>

namespace quadrelle {

class Number_Prompt {
public:
    // Shows `value` until something is typed. The box lies near `position`, inside the window.
    Number_Prompt(Point position, int value, int low, int high);

    // The number, or none after Escape, a click outside of the box, or the window's close button.
    std::optional<int> run();

private:
    [[nodiscard]] std::string hint() const;
    void draw() const;
    Loop_Step handle(const Input_Event& event);
    [[nodiscard]] Loop_Step press(const Pointer_State& pointer) const;
    Loop_Step handle_key(Keycode pressed);
    Loop_Step accept();
    void append(char digit);
    void change_sign();

    int low_;
    int high_;
    std::string typed_;
    // The first digit replaces the value that is shown at the start.
    bool is_untouched_ = true;
    bool is_refused_ = false;
    std::optional<int> result_;
    Rectangle box_;
};

} // namespace quadrelle
