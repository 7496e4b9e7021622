#pragma once

// The column of tool icons beside the canvas.

#include "base/geometry.h"
#include "commands/command.h"

#include <functional>

namespace quadrelle {

class Icon_Bar {
public:
    // `is_pressed` tells which icons are lit.
    void draw(const std::function<bool(Command)>& is_pressed) const;
    // Returns the command of the icon at `point`, or none.
    [[nodiscard]] Command command_at(Point point) const;
};

} // namespace quadrelle
