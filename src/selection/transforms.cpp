#include "selection/transforms.h"

#include "selection/scroll.h"
#include "selection/transform_table.h"

#include <functional>

namespace quadrelle {

namespace {

// Pixels that change places with each other all go when one of them is selected.
class Turn {
public:
    Turn(const Selection& selection, const Placement& placement)
        : selection_(selection), placement_(placement), bounds_(selection.bounds()) {}

    void apply(Tile& tile) const {
        const Tile before(tile);
        for (int y = 0; y < bounds_.height; ++y) {
            for (int x = 0; x < bounds_.width; ++x) {
                if (moves({x, y})) {
                    const Tile_Point from = placement_.origin({x, y}, size());
                    tile.set_pixel(bounds_.x + x, bounds_.y + y,
                                   before.get_pixel(bounds_.x + from.x, bounds_.y + from.y));
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
            pixel = placement_.origin(pixel, size());
        }
        return false;
    }

    const Selection& selection_;
    const Placement& placement_;
    Rectangle bounds_;
};

void turn(Tile& tile, Selection& selection, const Placement& placement) {
    const Selection before = selection;
    const Turn turn(before, placement);
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

bool is_transform(Command command) {
    return find_transform(command) != nullptr || command == Command::anti_alias;
}

// How the pixels of an area are changed; each command does one of the three.
struct Area_Transforms {
    std::function<void()> soften;
    std::function<void(Tile_Point step)> scroll;
    std::function<void(const Placement& placement)> place;
};

Outcome transform_area(Size area, const Area_Transforms& transforms, Command command) {
    if (!is_transform(command)) {
        return Outcome::unknown;
    }
    const Transform_Row* const row = find_transform(command);
    if (row == nullptr) {
        transforms.soften();
    } else if (row->placement == nullptr) {
        transforms.scroll(row->step);
    } else if (row->placement->fits(area)) {
        transforms.place(*row->placement);
    } else {
        return Outcome::refused;
    }
    return Outcome::done;
}

} // namespace

Outcome transform_tile(Tile* tile, Command command) {
    if (tile == nullptr) {
        return is_transform(command) ? Outcome::refused : Outcome::unknown;
    }
    return transform_area(tile->size(),
                          {[tile] { tile->anti_alias(); },
                           [tile](Tile_Point step) { scroll_wrapped(*tile, step); },
                           [tile](const Placement& placement) { place(Tile(*tile), *tile, placement); }},
                          command);
}

Outcome transform_selected(Tile& tile, Selection& selection, Command command) {
    const Rectangle bounds = selection.bounds();
    return transform_area({bounds.width, bounds.height},
                          {[&] { anti_alias(tile, selection); },
                           [&](Tile_Point step) { scroll_selected(tile, selection, step); },
                           [&](const Placement& placement) { turn(tile, selection, placement); }},
                          command);
}

} // namespace quadrelle
