#include "selection/selection_transforms.h"

#include "selection/scroll.h"

#include <algorithm>
#include <array>

namespace quadrelle {

namespace {

// Where a pixel of an area goes; both from the area's corner.
using Placement = Tile_Point (*)(Tile_Point pixel, Size area);

Tile_Point mirrored(Tile_Point pixel, Size area) {
    return {area.width - 1 - pixel.x, pixel.y};
}
Tile_Point flipped(Tile_Point pixel, Size area) {
    return {pixel.x, area.height - 1 - pixel.y};
}
Tile_Point turned_right(Tile_Point pixel, Size area) {
    return {area.width - 1 - pixel.y, pixel.x};
}
Tile_Point turned_left(Tile_Point pixel, Size area) {
    return {pixel.y, area.height - 1 - pixel.x};
}

// Pixels that change places with each other all go when one of them is selected.
class Turn {
public:
    Turn(const Selection& selection, Placement place)
        : selection_(selection), place_(place), bounds_(selection.bounds()) {}

    void apply(Tile& tile) const {
        const Tile before(tile);
        for (int y = 0; y < bounds_.height; ++y) {
            for (int x = 0; x < bounds_.width; ++x) {
                const Tile_Point from{x, y};
                if (moves(from)) {
                    const Tile_Point to = place_(from, size());
                    tile.set_pixel(bounds_.x + to.x, bounds_.y + to.y,
                                   before.get_pixel(bounds_.x + x, bounds_.y + y));
                }
            }
        }
    }

private:
    [[nodiscard]] Size size() const { return {bounds_.width, bounds_.height}; }
    [[nodiscard]] bool moves(Tile_Point pixel) const {
        // No more than four pixels of a quarter turn change places.
        for (int i = 0; i < 4; ++i) {
            if (selection_.contains({bounds_.x + pixel.x, bounds_.y + pixel.y})) {
                return true;
            }
            pixel = place_(pixel, size());
        }
        return false;
    }

    const Selection& selection_;
    Placement place_;
    Rectangle bounds_;
};

void turn(Tile& tile, Selection& selection, Placement place) {
    const Selection before = selection;
    const Turn turn(before, place);
    turn.apply(tile);
    selection.change([&turn](Tile& mask) { turn.apply(mask); });
}

void anti_alias(Tile& tile, const Selection& selection) {
    Tile softened(tile);
    softened.anti_alias();
    for (int i = 0; i < tile.pixel_count(); ++i) {
        if (selection.mask().get_pixel_at(i) == Selection::selected_color) {
            tile.set_pixel_at(i, softened.get_pixel_at(i));
        }
    }
}

struct Turn_Row {
    Command command;
    bool needs_square;
    Placement place;
};

constexpr std::array turns = std::to_array<Turn_Row>({
    {Command::rotate, true, turned_right},
    {Command::rotate_back, true, turned_left},
    {Command::mirror, false, mirrored},
    {Command::flip, false, flipped},
});

struct Scroll_Row {
    Command command;
    Tile_Point step;
};

constexpr std::array scrolls = std::to_array<Scroll_Row>({
    {Command::scroll_left, {-1, 0}},
    {Command::scroll_right, {1, 0}},
    {Command::scroll_up, {0, -1}},
    {Command::scroll_down, {0, 1}},
});

} // namespace

Command transform_selected(Tile& tile, Selection& selection, Command command) {
    const auto turn_row = std::ranges::find(turns, command, &Turn_Row::command);
    const auto scroll_row = std::ranges::find(scrolls, command, &Scroll_Row::command);
    if (turn_row != turns.end()) {
        const Rectangle bounds = selection.bounds();
        if (turn_row->needs_square && bounds.width != bounds.height) {
            return Command::skip_command;
        }
        turn(tile, selection, turn_row->place);
    } else if (scroll_row != scrolls.end()) {
        scroll_selected(tile, selection, scroll_row->step);
    } else if (command == Command::anti_alias) {
        anti_alias(tile, selection);
    } else {
        return Command::none;
    }
    return command;
}

} // namespace quadrelle
