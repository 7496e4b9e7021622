#pragma once

// The column of tool icons beside the canvas.

#include "base/geometry.h"
#include "commands/command.h"

#include <functional>

namespace quadrelle {

class Icon_Bar {
public:
    // Its top in the window.
    explicit Icon_Bar(int top) : top_(top) {}

    // `is_pressed` tells which icons are lit.
    void draw(const std::function<bool(Command)>& is_pressed) const;
    // The command of the icon there, or none.
    [[nodiscard]] Command command_at(Point point) const;

private:
    int top_;
};

} // namespace quadrelle
