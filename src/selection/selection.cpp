#include "selection/selection.h"

#include <algorithm>

namespace quadrelle {

Selection::Selection(Size size) : mask_(size.width, size.height) {
    clear();
}

Rectangle Selection::bounds() const {
    return is_empty() ? Rectangle{} : mask_.white_bounds();
}

void Selection::clear() {
    mask_.fill(unselected_color);
    count_ = 0;
}

void Selection::invert() {
    change([](Tile& mask) {
        mask.map_colours(
            [](Color pixel) { return pixel == selected_color ? unselected_color : selected_color; });
    });
}

void Selection::combine(const Selection& other, Selection_Change change) {
    const Color color = change == Selection_Change::add ? selected_color : unselected_color;
    const auto theirs = other.mask_.pixels();
    mask_.change_pixels([&](std::span<Color> own) {
        for (std::size_t i = 0; i < own.size(); ++i) {
            if (theirs[i] == selected_color) {
                own[i] = color;
            }
        }
    });
    count_selected();
}

void Selection::draw(const std::function<void(Drawing_Target&)>& paint) {
    Drawing_Target target(mask_);
    paint(target);
    count_selected();
}

void Selection::change(const std::function<void(Tile&)>& change) {
    change(mask_);
    count_selected();
}

bool Selection::operator==(const Selection& other) const {
    return mask_.same_pixels(other.mask_);
}

void Selection::count_selected() {
    count_ = static_cast<int>(std::ranges::count(mask_.pixels(), selected_color));
}

Selection selected_rectangle(Size size, Tile_Point from, Tile_Point to) {
    const auto [left, right] =
        std::minmax({std::clamp(from.x, 0, size.width), std::clamp(to.x, 0, size.width)});
    const auto [top, bottom] =
        std::minmax({std::clamp(from.y, 0, size.height), std::clamp(to.y, 0, size.height)});
    Selection selection(size);
    selection.change([&, left = left, right = right, top = top, bottom = bottom](Tile& mask) {
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                mask.set_pixel(x, y, Selection::selected_color);
            }
        }
    });
    return selection;
}

} // namespace quadrelle
