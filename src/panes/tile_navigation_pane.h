#pragma once

// Seven buttons in a row that step through the tiles of a set and scroll its strip. Answers with commands;
// carries none out.

#include "commands/command.h"
#include "ui/pane.h"

#include <optional>

namespace quadrelle {

class Tile_Strip;

class Tile_Navigation_Pane : public Pane {
public:
    explicit Tile_Navigation_Pane(Point position);

    using Pane::draw;
    void draw(const Tile_Strip& strip) const;
    // Returns the command of the button at `point`, or none. A disabled button answers too: its command
    // finds nothing to do.
    [[nodiscard]] Command command_at(Point point) const;
    // Returns the same; the button is held from now on.
    Command click(Point point);
    void release() { held_.reset(); }
    // Returns the area of the button that is held, if any.
    [[nodiscard]] std::optional<Rectangle> held_area() const {
        return held_ ? std::optional(area_of(*held_)) : std::nullopt;
    }

private:
    [[nodiscard]] std::optional<std::size_t> button_at(Point point) const;
    [[nodiscard]] Rectangle area_of(std::size_t button) const;

    std::optional<std::size_t> held_;
};

} // namespace quadrelle
