#pragma once

// Buttons that go on acting while they are held, as the keys of a keyboard do.

#include "base/geometry.h"

#include <functional>

namespace quadrelle {

struct Held_Button {
    Rectangle area;
    std::function<void()> draw; // and present the window
    std::function<void()> act;
};

// After the press, which has acted already: acts again and again, after a pause, while the pointer is on the
// button, until a button of the mouse is released or the window is to be closed. `pointer` follows.
void repeat_while_held(const Held_Button& button, Point& pointer);

} // namespace quadrelle
