#include "map/map_camera.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int always_seen = 16;

int floor_quotient(int number, int divisor) {
    const int quotient = number / divisor;
    return number % divisor < 0 ? quotient - 1 : quotient;
}

} // namespace

Point Map_Camera::pixel_at(Point point) const {
    const auto [numerator, denominator] = scale();
    return {floor_quotient((point.x - origin_.x) * denominator, numerator),
            floor_quotient((point.y - origin_.y) * denominator, numerator)};
}

Map_Point Map_Camera::cell_at(Point point) const {
    const Point pixel = pixel_at(point);
    return {floor_quotient(pixel.x, tile_.width), floor_quotient(pixel.y, tile_.height)};
}

// The first pixel of the view that shows that one of the map, or one behind it.
int Map_Camera::scaled_up(int pixels) const {
    const auto [numerator, denominator] = scale();
    return -floor_quotient(-pixels * numerator, denominator);
}

Rectangle Map_Camera::area_of(const Rectangle& cells) const {
    const Point start{scaled_up(cells.x * tile_.width), scaled_up(cells.y * tile_.height)};
    const Point end{scaled_up(cells.right() * tile_.width), scaled_up(cells.bottom() * tile_.height)};
    return {origin_.x + start.x, origin_.y + start.y, end.x - start.x, end.y - start.y};
}

Rectangle Map_Camera::seen_cells(Size map) const {
    const Map_Point first = cell_at({0, 0});
    const Map_Point last = cell_at({view_.width - 1, view_.height - 1});
    return intersection({0, 0, map.width, map.height},
                        {first.x, first.y, last.x - first.x + 1, last.y - first.y + 1});
}

bool Map_Camera::zoom(int steps, Point about) {
    const int wanted =
        std::clamp(static_cast<int>(scale_) + steps, 0, static_cast<int>(map_scales.size()) - 1);
    if (wanted == static_cast<int>(scale_)) {
        return false;
    }
    const Point pixel = pixel_at(about);
    scale_ = static_cast<std::size_t>(wanted);
    origin_ = {about.x - scaled_up(pixel.x), about.y - scaled_up(pixel.y)};
    return true;
}

void Map_Camera::centre(Size map) {
    const Rectangle area = area_of({0, 0, map.width, map.height});
    const Rectangle wanted = centred({area.width, area.height}, {0, 0, view_.width, view_.height});
    origin_ = {wanted.x, wanted.y};
}

void Map_Camera::centre_on(Map_Point cell) {
    const Rectangle area = area_of({cell.x, cell.y, 1, 1});
    const Rectangle wanted = centred({area.width, area.height}, {0, 0, view_.width, view_.height});
    move({wanted.x - area.x, wanted.y - area.y});
}

void Map_Camera::keep_in_view(Size map) {
    const Rectangle area = area_of({0, 0, map.width, map.height});
    origin_ = {std::clamp(origin_.x, always_seen - area.width, view_.width - always_seen),
               std::clamp(origin_.y, always_seen - area.height, view_.height - always_seen)};
}

} // namespace quadrelle
