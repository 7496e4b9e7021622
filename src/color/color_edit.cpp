#include "color/color_edit.h"

#include <algorithm>
#include <cmath>

namespace quadrelle {

namespace {

constexpr double full_value = 255.0;

bool is_component(Color_Channel channel) {
    return channel == Color_Channel::hue || channel == Color_Channel::saturation ||
           channel == Color_Channel::value;
}

// The lightest and purest colour of that hue.
Color pure(double hue) {
    HSV_Color hsv;
    hsv.hue = hue;
    hsv.saturation = 1.0;
    hsv.value = full_value;
    return hsv.nearest_rgb();
}

int rounded(double number) {
    return static_cast<int>(std::lround(number));
}

} // namespace

Color_Edit::Color_Edit(Color color) {
    set_color(color);
}

void Color_Edit::set_color(Color color) {
    color_ = color;
    hsv_.from_rgb(color, pure(hsv_.hue));
}

int Color_Edit::number(Color_Channel channel) const {
    switch (channel) {
    case Color_Channel::hue: return rounded(hsv_.hue) % 360;
    case Color_Channel::saturation: return rounded(hsv_.saturation.value() * 100.0);
    case Color_Channel::value: return rounded(hsv_.value.value() * 100.0 / full_value);
    default: return color_.channel(static_cast<int>(channel));
    }
}

void Color_Edit::set_number(Color_Channel channel, int new_number) {
    new_number = std::clamp(new_number, 0, row_of(channel).high);
    if (new_number == number(channel)) {
        return;
    }
    if (is_component(channel)) {
        set_component(channel, new_number);
    } else {
        Color color = color_;
        color.add_clamped(static_cast<int>(channel), new_number - number(channel));
        if (channel == Color_Channel::alpha) {
            color_ = color;
        } else {
            set_color(color);
        }
    }
}

void Color_Edit::set_component(Color_Channel channel, int new_number) {
    if (channel == Color_Channel::hue) {
        hsv_.hue = new_number;
    } else if (channel == Color_Channel::saturation) {
        hsv_.saturation = new_number / 100.0;
    } else {
        hsv_.value = new_number * full_value / 100.0;
    }
    const Color color = hsv_.nearest_rgb();
    color_.set_rgb(color.r, color.g, color.b);
}

void Color_Edit::step(Color_Channel channel, int amount) {
    const int range = row_of(channel).high + 1;
    const int target = number(channel) + amount;
    const bool wraps = row_of(channel).end == Channel_End::wraps;
    set_number(channel, wraps ? ((target % range) + range) % range : target);
}

} // namespace quadrelle
