#include "screen/window_view.h"

#include <algorithm>
#include <cmath>

namespace quadrelle {

namespace {

// The same shape, as large as fits; a side has a pixel at least.
Size scaled_down(Size drawing, Size room) {
    const double scale = std::min(static_cast<double>(room.width) / drawing.width,
                                  static_cast<double>(room.height) / drawing.height);
    return {std::max(1, static_cast<int>(drawing.width * scale)),
            std::max(1, static_cast<int>(drawing.height * scale))};
}

int largest_multiple(Size drawing, Size room) {
    return std::min(room.width / drawing.width, room.height / drawing.height);
}

} // namespace

Window_View::Window_View(Size drawing, Size window)
    : drawing_(drawing), scale_(largest_multiple(drawing, window)) {
    const Size size =
        is_sharp() ? Size{drawing.width * scale_, drawing.height * scale_} : scaled_down(drawing, window);
    area_ = centred(size, {0, 0, window.width, window.height});
}

Rectangle Window_View::shown(const Rectangle& part) const {
    if (!is_sharp()) {
        return area_;
    }
    return {area_.x + part.x * scale_, area_.y + part.y * scale_, part.width * scale_, part.height * scale_};
}

Window_View::Position Window_View::in_drawing(Position in_window) const {
    return moved_in_drawing(
        {in_window.x - static_cast<float>(area_.x), in_window.y - static_cast<float>(area_.y)});
}

Window_View::Position Window_View::in_window(Position in_drawing) const {
    const auto along = [](float position, int drawn, int shown) {
        return position * static_cast<float>(shown) / static_cast<float>(drawn);
    };
    return {static_cast<float>(area_.x) + along(in_drawing.x, drawing_.width, area_.width),
            static_cast<float>(area_.y) + along(in_drawing.y, drawing_.height, area_.height)};
}

Window_View::Position Window_View::moved_in_drawing(Position in_window) const {
    const auto along = [](float distance, int drawn, int shown) {
        return distance * static_cast<float>(drawn) / static_cast<float>(shown);
    };
    return {along(in_window.x, drawing_.width, area_.width),
            along(in_window.y, drawing_.height, area_.height)};
}

Size wanted_window(Size drawing, float display_scale, Size room) {
    const int most = largest_multiple(drawing, room);
    const int wanted = std::max(1, static_cast<int>(std::floor(display_scale)));
    const int multiple = std::min(wanted, most);
    return multiple == 0 ? scaled_down(drawing, room)
                         : Size{drawing.width * multiple, drawing.height * multiple};
}

} // namespace quadrelle
