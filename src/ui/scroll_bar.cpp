#include "ui/scroll_bar.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "ui/control.h"

#include <algorithm>
#include <cstdint>

namespace quadrelle {

namespace {

constexpr int shortest_thumb = 20;
constexpr float wheel_rows = 3;

} // namespace

void Scroll_Bar::set_count(int rows) {
    count_ = rows;
    first_ = 0;
    is_dragging_ = false;
}

int Scroll_Bar::end() const {
    return std::min(count_, first_ + page_);
}

int Scroll_Bar::last_first() const {
    return std::max(count_ - page_, 0);
}

void Scroll_Bar::scroll(int rows) {
    first_ = static_cast<int>(std::clamp<std::int64_t>(std::int64_t{first_} + rows, 0, last_first()));
}

void Scroll_Bar::scroll_by_wheel(float amount) {
    scroll(-wheel_.take(amount * wheel_rows));
}

void Scroll_Bar::show_row(int row) {
    scroll(std::min(row - first_, 0));
    scroll(std::max(row - (first_ + page_ - 1), 0));
}

bool Scroll_Bar::press(Point point) {
    if (!is_needed() || !track_.contains(point)) {
        return false;
    }
    is_dragging_ = true;
    drag(point);
    return true;
}

void Scroll_Bar::drag(Point point) {
    const int height = thumb().height;
    const int way = track_.height - height;
    if (!is_dragging_ || way <= 0) {
        return;
    }
    const int offset = std::clamp(point.y - track_.y - height / 2, 0, way);
    first_ = static_cast<int>(std::int64_t{offset} * last_first() / way);
}

Rectangle Scroll_Bar::thumb() const {
    const auto share = static_cast<int>(std::int64_t{track_.height} * page_ / std::max(count_, 1));
    const int height = std::max(shortest_thumb, share);
    const auto offset =
        static_cast<int>(std::int64_t{track_.height - height} * first_ / std::max(last_first(), 1));
    return {track_.x + 1, track_.y + offset, track_.width - 1, height};
}

void Scroll_Bar::draw() const {
    if (is_needed()) {
        screen->fill_rect(track_, standard_color(Standard_Color::frame));
        screen->draw_panel(thumb(), standard_color(Standard_Color::pane_background));
        draw_answer(thumb());
    }
}

} // namespace quadrelle
