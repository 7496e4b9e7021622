#include "panes/hsv_selector.h"

#include "color/standard_colors.h"
#include "screen/cursor.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace quadrelle {

namespace {

// The room below the title bar: both pictures, their outlines and the pane's border.
static_assert(window_layout::hsv_selector.height == window_layout::pane_height(HSV_Selector::size + 2));
constexpr int bar_gap = 7;
constexpr int marker_centre = 5;

struct Hue_Step {
    int r;
    int g;
    int b;
};

struct Hue_Strip {
    Color top;
    Hue_Step step; // added for each row: 127 steps of 2 end one short of a full channel
};

constexpr std::array<Hue_Strip, HSV_Selector::segments> hue_strips{{
    {{255, 0, 0}, {0, 0, 2}},
    {{255, 0, 255}, {-2, 0, 0}},
    {{0, 0, 255}, {0, 2, 0}},
    {{0, 255, 255}, {0, 0, -2}},
    {{0, 255, 0}, {2, 0, 0}},
    {{255, 255, 0}, {0, -2, 0}},
}};

// Only the weight has single precision: with the sums in it too, the last entry would miss `to`.
std::vector<Color> gradient(Color from, Color to) {
    constexpr float step = 1.0F / (HSV_Selector::size - 1);
    std::vector<Color> out;
    float weight = 1.0F;
    for (int i = 0; i < HSV_Selector::size; ++i) {
        const double own = weight;
        const auto mixed = [own](int a, int b) { return truncated_channel(a * own + b * (1.0 - own)); };
        out.emplace_back(mixed(from.r, to.r), mixed(from.g, to.g), mixed(from.b, to.b));
        weight -= step;
    }
    return out;
}

Point clamped(Point point, const Rectangle& area) {
    return {std::clamp(point.x, area.x, area.right() - 1), std::clamp(point.y, area.y, area.bottom() - 1)};
}

} // namespace

HSV_Selector::HSV_Selector(Point position, Set_Color set_color)
    : Pane(below_title({position.x, position.y, window_layout::hsv_selector.width,
                        window_layout::hsv_selector.height}),
           "HSV Selector"),
      set_color_(std::move(set_color)), square_image_({size, size}),
      bar_image_({segments * segment_width, size}) {
    HSV_Selector::layout();
    set_hue(standard_color(Standard_Color::red));
    build_bar();
}

void HSV_Selector::layout() {
    Pane::layout();
    const Rectangle client = client_area();
    square_rect_ = {client.x + 1, client.y + 1, size, size};
    bar_rect_ = {square_rect_.x + size + bar_gap, square_rect_.y, segments * segment_width, size};
}

void HSV_Selector::set_hue(Color hue) {
    const Color black = standard_color(Standard_Color::black);
    left_column_ = gradient(standard_color(Standard_Color::white), black);
    right_column_ = gradient(hue, black);
    for (int y = 0; y < size; ++y) {
        const auto row = static_cast<std::size_t>(y);
        const std::vector<Color> shades = gradient(left_column_[row], right_column_[row]);
        for (int x = 0; x < size; ++x) {
            square_image_.set_pixel({x, y}, shades[static_cast<std::size_t>(x)]);
        }
    }
    square_image_.upload();
}

void HSV_Selector::build_bar() {
    int x = 0;
    for (const Hue_Strip& strip : hue_strips) {
        Color color = strip.top;
        for (int y = 0; y < size; ++y) {
            bar_image_.fill_rect({x, y, segment_width, 1}, color);
            color.add_rgb(strip.step.r, strip.step.g, strip.step.b);
        }
        x += segment_width;
    }
    bar_image_.upload();
}

void HSV_Selector::draw() const {
    const Color outline = standard_color(Standard_Color::pane_background);
    draw_around({square_rect_.x, square_rect_.y, bar_rect_.right() - square_rect_.x, size});
    screen->fill_rect({square_rect_.right(), square_rect_.y, bar_rect_.x - square_rect_.right(), size},
                      outline);
    screen->draw_outline(square_rect_.inset(-1), outline);
    square_image_.draw_at({square_rect_.x, square_rect_.y});
    screen->draw_outline(bar_rect_.inset(-1), outline);
    bar_image_.draw_at({bar_rect_.x, bar_rect_.y});
    if (marker_) {
        screen->draw_sprite(Sprite::crosshairs, {marker_->x - marker_centre, marker_->y - marker_centre});
    }
}

bool HSV_Selector::click(Mouse_Button side, Point point, const std::function<void()>& redraw) {
    if (square_rect_.contains(point)) {
        drag(side, point, Mode::square, redraw);
        return true;
    }
    if (bar_rect_.contains(point)) {
        drag(side, point, Mode::bar, redraw);
    }
    return false;
}

void HSV_Selector::drag(Mouse_Button side, Point point, Mode mode, const std::function<void()>& redraw) {
    const Rectangle clip = mode == Mode::square ? square_rect_ : bar_rect_;
    const Hidden_Cursor hidden_cursor;
    pick(side, point, mode);
    follow_pointer("selector", redraw, [&](const Input_Event& motion) {
        const Point moved = motion.pointer.point();
        const Point held = clamped(moved, clip);
        if (held != moved) {
            screen->warp_mouse(held);
        }
        pick(side, held, mode);
    });
    marker_.reset();
    discard_events();
}

void HSV_Selector::pick(Mouse_Button side, Point point, Mode mode) {
    marker_ = point;
    if (mode == Mode::bar) {
        set_hue(bar_image_.pixel({point.x - bar_rect_.x, point.y - bar_rect_.y}));
    } else {
        set_color_(side, square_image_.pixel({point.x - square_rect_.x, point.y - square_rect_.y}));
    }
}

} // namespace quadrelle
