#pragma once

// The panes beside the tools that select: the current copy, the copies before it, and what can be done with
// them and with the selection. They change nothing themselves.

#include "base/geometry.h"
#include "commands/command.h"
#include "selection/copy_buffer.h"
#include "ui/pane.h"
#include "ui/shown_tile.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace quadrelle {

class Copy_Panes {
public:
    Copy_Panes();

    // Puts the panes into their column from `top` down, or higher where they would leave it.
    void place(int top);
    // `can_do` tells which commands would do something.
    void draw(const Copy_Buffer& copies, const std::function<bool(Command)>& can_do);

    [[nodiscard]] const Pane& current() const { return current_; }
    [[nodiscard]] const Pane& previous() const { return previous_; }
    // Returns the cell for a previous copy at `point`, which may be empty; that of the newest one is 0.
    [[nodiscard]] std::optional<std::size_t> cell_at(Point point) const;
    // Returns the command whose button is at `point`, or none.
    [[nodiscard]] Command command_at(Point point) const;

private:
    static constexpr std::size_t button_count = 8;

    void draw_current(const Copy_Buffer& copies);
    void draw_copy(const Copy_Buffer& copies, std::size_t index);
    void draw_picture(const Tile& picture, Shown_Tile& shown, const Rectangle& area) const;
    [[nodiscard]] Rectangle cell(std::size_t index) const;
    void place_buttons();

    Pane current_;
    Pane previous_;
    Pane commands_;
    std::array<Rectangle, button_count> buttons_;
    std::unique_ptr<Texture> checkerboard_;
    Shown_Tile shown_current_;
    std::array<Shown_Tile, Copy_Buffer::capacity> shown_copies_;
};

} // namespace quadrelle
